#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace vantorel {

/// Calls back on the main event loop whenever a file descriptor has something to read.
///
/// Main thread, once the QCoreApplication is there. The callback reads what there is, or it is called again
/// at once; it may destroy the watcher.
class FileDescriptorWatcher {
 public:
  /// `descriptor` stays open as long as this object.
  FileDescriptorWatcher(int descriptor, std::function<void()> readable);
  FileDescriptorWatcher(const FileDescriptorWatcher&) = delete;
  FileDescriptorWatcher& operator=(const FileDescriptorWatcher&) = delete;
  ~FileDescriptorWatcher();

 private:
  std::unique_ptr<QSocketNotifier> notifier;
};

}  // namespace vantorel
