#pragma once

namespace vantorel {

/// Whether this process may post input events into the session. Main thread.
class AccessibilityTrust {
 public:
  virtual ~AccessibilityTrust() = default;

  virtual bool isTrusted() = 0;

  /// The same; the user is asked for the permission when it is missing.
  virtual bool isTrustedWithPrompt() = 0;
};

}  // namespace vantorel
