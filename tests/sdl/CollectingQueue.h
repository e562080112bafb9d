#pragma once

#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>

#include "MainQueue.h"
#include "WaitUntil.h"

namespace vantorel::test {

/// A main queue that keeps its blocks until the test's own thread runs them.
class CollectingQueue final : public MainQueue {
 public:
  void post(std::function<void()> block) override {
    const std::lock_guard lock(mutex_);
    blocks_.push_back(std::move(block));
  }

  /// Runs all blocks that wait.
  void run() {
    while (const std::function<void()> block = pop()) block();
  }

  /// Runs blocks as they come until `condition` holds; answers whether it did in time.
  bool runUntil(const std::function<bool()>& condition) {
    return waitUntil([&] {
      run();
      return condition();
    });
  }

  bool isEmpty() {
    const std::lock_guard lock(mutex_);
    return blocks_.empty();
  }

 private:
  std::function<void()> pop() {
    const std::lock_guard lock(mutex_);
    if (blocks_.empty()) return nullptr;
    std::function<void()> first = std::move(blocks_.front());
    blocks_.pop_front();
    return first;
  }

  std::mutex mutex_;
  std::deque<std::function<void()>> blocks_;
};

}  // namespace vantorel::test
