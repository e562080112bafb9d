#pragma once

#include <cstdint>

namespace vantorel {

/// How the program shows among the running ones: with its windows in the task bar and the switcher, or not.
enum class ActivationPolicy : std::uint8_t { regular, accessory };

/// The running program as the desktop sees it. Main thread.
class Application {
 public:
  virtual ~Application() = default;

  virtual void setActivationPolicy(ActivationPolicy policy) = 0;

  /// Asks the program to end; it ends after the present block.
  virtual void terminate() = 0;
};

}  // namespace vantorel
