#include "X11AccessibilityTrust.h"

#include <xcb/xtest.h>

namespace vantorel {

bool X11AccessibilityTrust::isTrusted() { return connection.has(xcb_test_id); }

}  // namespace vantorel
