#pragma once

#include <utility>
#include <vector>

#include "MainQueue.h"

namespace vantorel::test {

/// A main queue that runs its blocks when the test says so.
class TestQueue : public MainQueue {
 public:
  void post(std::function<void()> block) override { blocks.push_back(std::move(block)); }

  /// Runs what is queued, and what that queues in turn.
  void run() {
    while (!blocks.empty()) {
      for (const auto& block : std::exchange(blocks, {})) block();
    }
  }

 private:
  std::vector<std::function<void()>> blocks;
};

}  // namespace vantorel::test
