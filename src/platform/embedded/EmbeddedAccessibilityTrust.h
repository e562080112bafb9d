#pragma once

#include "AccessibilityTrust.h"
#include "Transcript.h"

namespace vantorel {

/// A permission that is granted or denied by decree; a prompt is only recorded.
class EmbeddedAccessibilityTrust : public AccessibilityTrust {
 public:
  explicit EmbeddedAccessibilityTrust(Transcript& record) : transcript(record) {}

  /// The answer from now on; granted at first.
  void setGranted(bool isGranted) { granted = isGranted; }

  bool isTrusted() override { return granted; }
  bool isTrustedWithPrompt() override;

 private:
  Transcript& transcript;
  bool granted = true;
};

}  // namespace vantorel
