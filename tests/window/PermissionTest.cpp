// An X server that lacks the extension for posting events.

#include "WindowTest.h"

namespace vantorel::test {
namespace {

class WithoutPermission : public WindowTest {
 protected:
  WithoutPermission() : WindowTest({"-extension", "XTEST"}) {}

  /// The Escape key of a keyboard of evdev codes.
  static constexpr xcb_keycode_t escapeKey = 9;
};

TEST_F(WithoutPermission, ThePermissionShowsAsMissingAndFixLeadsToTheRemedyAndEscapeBack) {
  start();
  readScreen(
      {"miss label: GRANTED", "press push button: FIX", "see label: WHAT_IS_MISSING",
       "see label: This X server lacks the XTEST extension, so Vantorel can press no keys and move no mouse.",
       "see label: NEXT_STEP", "focus push button: BACK", "miss check box: ACTIVE_MAPPING"});
  windows.sendKey(window(), escapeKey);
  readScreen({"see check box: ACTIVE_MAPPING", "see push button: FIX", "miss label: WHAT_IS_MISSING"});
}

}  // namespace
}  // namespace vantorel::test
