#include "X11Injection.h"

#include <utility>

namespace vantorel {

X11Injection::X11Injection(MainQueue& queue, std::function<void()> onConnectionLost)
    : trust(posting),
      poster(posting),
      keys(grabbing, queue, std::move(onConnectionLost)),
      watcher(keys.fileDescriptor(), [this] { keys.processEvents(); }) {}

}  // namespace vantorel
