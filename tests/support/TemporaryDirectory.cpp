#include "TemporaryDirectory.h"

#include <stdlib.h>

#include <cerrno>
#include <string>
#include <system_error>

namespace vantorel::test {

TemporaryDirectory::TemporaryDirectory() {
  std::string name = std::filesystem::temp_directory_path() / "vantorel-test-XXXXXX";
  if (mkdtemp(name.data()) == nullptr) throw std::system_error(errno, std::generic_category(), name);
  path_ = name;
}

TemporaryDirectory::~TemporaryDirectory() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace vantorel::test
