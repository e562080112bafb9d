#pragma once

#include <set>
#include <string>

#include "FileManager.h"

namespace vantorel {

/// A file system that holds nothing but the names it was told.
class EmbeddedFileManager : public FileManager {
 public:
  void addFile(const std::string& path) { files.insert(path); }

  bool fileExists(const std::string& path) const override { return files.contains(path); }

 private:
  std::set<std::string> files;
};

}  // namespace vantorel
