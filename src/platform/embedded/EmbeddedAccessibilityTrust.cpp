#include "EmbeddedAccessibilityTrust.h"

namespace vantorel {

bool EmbeddedAccessibilityTrust::isTrustedWithPrompt() {
  if (!granted) transcript.write("prompt");
  return granted;
}

}  // namespace vantorel
