#pragma once

namespace vantorel {

/// SDL's controller part, from init to quit, without its video part and with its hands off signals. One at a
/// time; all of it belongs to the thread that made it.
class SdlSession {
 public:
  /// Throws std::runtime_error when SDL cannot start.
  SdlSession();
  SdlSession(const SdlSession&) = delete;
  SdlSession& operator=(const SdlSession&) = delete;
  ~SdlSession();

  /// Whether pads are heard without a window in front; so it is from the start.
  void setMonitorsBackground(bool should);

 private:
  bool monitorsBackground_ = true;
};

}  // namespace vantorel
