#pragma once

#include "AccessibilityTrust.h"
#include "XcbConnection.h"

namespace vantorel {

/// An X server lets every client post input if it has the XTEST extension; there is nobody to ask.
class X11AccessibilityTrust : public AccessibilityTrust {
 public:
  /// `xcbConnection` outlives this object.
  explicit X11AccessibilityTrust(const XcbConnection& xcbConnection) : connection(xcbConnection) {}

  bool isTrusted() override;
  bool isTrustedWithPrompt() override { return isTrusted(); }

 private:
  const XcbConnection& connection;
};

}  // namespace vantorel
