#pragma once

#include "FileManager.h"

namespace vantorel {

/// The file system of the machine.
class SystemFileManager final : public FileManager {
 public:
  /// A symbolic link counts as what it leads to. What may not be looked at counts as absent.
  bool fileExists(const std::string& path) const override;
};

}  // namespace vantorel
