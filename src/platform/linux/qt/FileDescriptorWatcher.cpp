#include "FileDescriptorWatcher.h"

#include <QSocketNotifier>
#include <utility>

namespace vantorel {

FileDescriptorWatcher::FileDescriptorWatcher(int descriptor, std::function<void()> readable)
    : notifier(std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read)) {
  const auto callback = std::make_shared<const std::function<void()>>(std::move(readable));
  QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [callback] {
    // The callback may destroy the watcher, and this closure with it.
    const auto held = callback;  // NOLINT(performance-unnecessary-copy-initialization)
    (*held)();
  });
}

FileDescriptorWatcher::~FileDescriptorWatcher() = default;

}  // namespace vantorel
