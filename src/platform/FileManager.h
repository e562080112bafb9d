#pragma once

#include <string>

namespace vantorel {

/// The file system. Main thread.
class FileManager {
 public:
  virtual ~FileManager() = default;

  /// Whether a file or directory is at `path`.
  virtual bool fileExists(const std::string& path) const = 0;
};

}  // namespace vantorel
