#pragma once

#include <functional>

#include "FileDescriptorWatcher.h"
#include "MainQueue.h"
#include "X11AccessibilityTrust.h"
#include "X11HotKeys.h"
#include "XTestEventPoster.h"
#include "XcbConnection.h"

namespace vantorel {

/// Input into an X session and its hot keys, over two connections: the one for events that are posted is used
/// by several threads, the one for grabs is read by the main event loop.
class X11Injection {
 public:
  /// Throws std::runtime_error with a text for the user when there is no X server. `onConnectionLost` is
  /// called on the main queue.
  X11Injection(MainQueue& queue, std::function<void()> onConnectionLost);
  X11Injection(const X11Injection&) = delete;
  X11Injection& operator=(const X11Injection&) = delete;
  ~X11Injection() = default;

  X11AccessibilityTrust& accessibility() { return trust; }
  XTestEventPoster& eventPoster() { return poster; }
  X11HotKeys& hotKeys() { return keys; }

 private:
  XcbConnection posting;
  XcbConnection grabbing;
  X11AccessibilityTrust trust;
  XTestEventPoster poster;
  X11HotKeys keys;
  FileDescriptorWatcher watcher;
};

}  // namespace vantorel
