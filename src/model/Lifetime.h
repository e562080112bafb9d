#pragma once

#include <memory>
#include <utility>

namespace vantorel {

/// Guards blocks that are run later against the end of the object that they work on.
///
/// An object keeps a `Lifetime` as its last member and wraps each block that it hands away. A wrapped block
/// does nothing once the object is gone. Blocks may be wrapped on any thread; they are run, and the object
/// is destroyed, on one thread.
class Lifetime {
 public:
  template <class Block>
  auto guard(Block block) const {
    return [alive = std::weak_ptr<const char>(token_), block = std::move(block)](auto&&... arguments) {
      if (!alive.expired()) block(std::forward<decltype(arguments)>(arguments)...);
    };
  }

 private:
  std::shared_ptr<const char> token_ = std::make_shared<const char>('\0');
};

}  // namespace vantorel
