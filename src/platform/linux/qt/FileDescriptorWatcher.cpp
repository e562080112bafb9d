#include "FileDescriptorWatcher.h"

#include <QSocketNotifier>
#include <utility>

namespace vantorel {

FileDescriptorWatcher::FileDescriptorWatcher(int descriptor, std::function<void()> readable)
    : notifier(std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read)) {
  const auto callback = std::make_shared<const std::function<void()>>(std::move(readable));
  QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [callback] {
    const auto held = callback;  // the callback may destroy the watcher, and this closure with it
    (*held)();
  });
}

FileDescriptorWatcher::~FileDescriptorWatcher() = default;

}  // namespace vantorel
