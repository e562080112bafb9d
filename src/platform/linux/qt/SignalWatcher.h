#pragma once

#include <csignal>
#include <functional>
#include <utility>
#include <vector>

#include "Descriptor.h"
#include "FileDescriptorWatcher.h"

namespace vantorel {

/// Turns the signals that ask a program to end (SIGINT, SIGTERM, SIGHUP) into calls on the main event loop.
///
/// What runs when a signal comes is finished first: a signal during a sleep of the main thread is told of
/// afterwards, and does not shorten the sleep. A SIGHUP that was ignored before, as under nohup, stays so.
/// Main thread; one at a time. At the end the signals do what they did before.
class SignalWatcher {
 public:
  /// `signalHandler` gets the signal's number; it may destroy the watcher.
  explicit SignalWatcher(std::function<void(int signal)> signalHandler);
  SignalWatcher(const SignalWatcher&) = delete;
  SignalWatcher& operator=(const SignalWatcher&) = delete;
  ~SignalWatcher();

 private:
  struct Previous {
    int signal;
    struct sigaction action;
  };

  void take(int signal);
  void deliver();

  std::pair<Descriptor, Descriptor> pipe;  // read end and write end; a byte for each signal
  std::function<void(int signal)> handler;
  std::vector<Previous> previous;
  FileDescriptorWatcher watcher;
};

}  // namespace vantorel
