#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "Subscription.h"

namespace vantorel {

/// The callbacks of those who want to be told of something. One thread; a callback may subscribe, end
/// subscriptions, its own among them, and tell again.
template <class... Arguments>
class Observers {
 public:
  using Callback = std::function<void(Arguments...)>;

  /// `callback` is called by every `tell` until the subscription ends; it may outlive this object.
  [[nodiscard]] Subscription add(Callback callback) {
    const std::uint64_t id = nextId_++;
    callbacks_->emplace(id, std::make_shared<const Callback>(std::move(callback)));
    return Subscription([callbacks = std::weak_ptr(callbacks_), id] {
      if (const auto held = callbacks.lock()) held->erase(id);
    });
  }

  /// Calls every callback in the order of subscription. One that was ended meanwhile is not called.
  void tell(Arguments... arguments) const {
    const auto callbacks = callbacks_;  // a callback may destroy this object
    std::vector<std::uint64_t> ids;
    for (const auto& [id, callback] : *callbacks) ids.push_back(id);
    for (const std::uint64_t id : ids) {
      const auto entry = callbacks->find(id);
      if (entry == callbacks->end()) continue;
      const auto callback = entry->second;
      (*callback)(arguments...);
    }
  }

 private:
  using Callbacks = std::map<std::uint64_t, std::shared_ptr<const Callback>>;
  std::shared_ptr<Callbacks> callbacks_ = std::make_shared<Callbacks>();
  std::uint64_t nextId_ = 0;
};

}  // namespace vantorel
