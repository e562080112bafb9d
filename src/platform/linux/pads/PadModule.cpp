#include "PadModule.h"

#include <dlfcn.h>

#include <stdexcept>

namespace vantorel {

namespace fs = std::filesystem;

std::unique_ptr<PadLoop> loadPadLoop(const fs::path& module, const PadLoopContext& context) {
  const fs::path file = fs::read_symlink("/proc/self/exe").parent_path() / module;
  void* const library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  void* const function = library == nullptr ? nullptr : dlsym(library, makePadLoopName);
  if (function == nullptr) throw std::runtime_error(dlerror());
  std::unique_ptr<PadLoop> loop;
  reinterpret_cast<MakePadLoop*>(function)(context, loop);
  return loop;
}

}  // namespace vantorel
