#include "SystemFileManager.h"

#include <filesystem>
#include <system_error>

namespace vantorel {

bool SystemFileManager::fileExists(const std::string& path) const {
  std::error_code error;
  return std::filesystem::exists(path, error);
}

}  // namespace vantorel
