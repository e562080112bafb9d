#include "PadModule.h"

#include <dlfcn.h>

#include <stdexcept>

namespace vantorel {

std::unique_ptr<PadLoop> loadPadLoop(const std::string& module, const PadLoopContext& context) {
  void* const library = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  void* const function = library == nullptr ? nullptr : dlsym(library, makePadLoopName);
  if (function == nullptr) throw std::runtime_error(dlerror());
  std::unique_ptr<PadLoop> loop;
  reinterpret_cast<MakePadLoop*>(function)(context, loop);
  return loop;
}

}  // namespace vantorel
