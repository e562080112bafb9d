#pragma once

#include <functional>

#include "FileDescriptorWatcher.h"
#include "MainQueue.h"
#include "X11AccessibilityTrust.h"
#include "X11HotKeys.h"
#include "XTestEventPoster.h"
#include "XcbConnection.h"

namespace vantorel {

/// The connections to the X server for input. Making them waits for the server, and throws std::runtime_error
/// with a text for the user when there is none. Any thread, while no other connects to one: libXau is not
/// made for that.
struct X11Connections {
  XcbConnection posting;   ///< for events that are posted; used by several threads
  XcbConnection grabbing;  ///< for hot keys; read by the main event loop
};

/// Input into an X session and its hot keys. Main thread.
class X11Injection {
 public:
  /// `onConnectionLost` is called on the main queue.
  X11Injection(X11Connections x11, MainQueue& queue, std::function<void()> onConnectionLost);
  X11Injection(const X11Injection&) = delete;
  X11Injection& operator=(const X11Injection&) = delete;
  ~X11Injection() = default;

  X11AccessibilityTrust& accessibility() { return trust; }
  XTestEventPoster& eventPoster() { return poster; }
  X11HotKeys& hotKeys() { return keys; }

 private:
  X11Connections connections;
  X11AccessibilityTrust trust;
  XTestEventPoster poster;
  X11HotKeys keys;
  FileDescriptorWatcher watcher;
};

}  // namespace vantorel
