#include <type_traits>

#include "PadModule.h"
#include "SdlLoop.h"

namespace vantorel {

/// The one entry of the module; its name is makePadLoopName, its type MakePadLoop.
extern "C" void vantorelMakePadLoop(const PadLoopContext& context, std::unique_ptr<PadLoop>& loop) {
  loop = std::make_unique<SdlLoop>(context);
}
static_assert(std::is_same_v<decltype(vantorelMakePadLoop), MakePadLoop>);

}  // namespace vantorel
