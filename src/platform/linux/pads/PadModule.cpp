#include "PadModule.h"

#include <dlfcn.h>
#include <fcntl.h>

#include <cerrno>
#include <stdexcept>
#include <string>
#include <system_error>

namespace vantorel {

namespace fs = std::filesystem;

PadModule::PadModule(const fs::path& name) {
  const fs::path path = fs::read_symlink("/proc/self/exe").parent_path() / name;
  file_ = PolledFile::open(path, O_RDONLY | O_CLOEXEC);
  if (!file_.isOpen()) throw std::system_error(errno, std::generic_category(), path);
}

std::unique_ptr<PadLoop> PadModule::makeLoop(const PadLoopContext& context) const {
  const std::string path = "/proc/self/fd/" + std::to_string(file_.descriptor());
  void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  void* const function = library == nullptr ? nullptr : dlsym(library, makePadLoopName);
  if (function == nullptr) throw std::runtime_error(dlerror());
  std::unique_ptr<PadLoop> loop;
  reinterpret_cast<MakePadLoop*>(function)(context, loop);
  return loop;
}

}  // namespace vantorel
