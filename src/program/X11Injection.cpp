#include "X11Injection.h"

#include <utility>

namespace vantorel {

X11Injection::X11Injection(X11Connections x11, MainQueue& queue, std::function<void()> onConnectionLost)
    : connections(std::move(x11)),
      trust(connections.posting),
      poster(connections.posting),
      keys(connections.grabbing, queue, std::move(onConnectionLost)),
      watcher(keys.fileDescriptor(), [this] { keys.processEvents(); }) {}

}  // namespace vantorel
