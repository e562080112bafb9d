// The way to the driver's page on a desktop without a browser.

#include "WindowTest.h"

namespace vantorel::test {
namespace {

using WithoutBrowser = WindowTest;

TEST_F(WithoutBrowser, TheAddressShowsInTheWindow) {
  start({"PATH=/nonexistent"});
  readScreen({"press push button: DOWNLOAD_DRIVER", "see label: WHAT_IS_MISSING",
              "see label: This desktop could not open "
              "https://github.com/360Controller/360Controller/releases/tag/v0.16.11",
              "press push button: BACK", "see push button: DOWNLOAD_DRIVER", "miss label: WHAT_IS_MISSING"});
}

TEST_F(WithoutBrowser, TheAddressShowsInTheWindowThatAskedForIt) {
  start({"PATH=/nonexistent"});
  const xcb_window_t first = window();
  screen.press({XK_Control_L, XK_n});
  xcb_window_t second = XCB_NONE;
  require("the second window", [&] {
    second = windows.active();
    return windowCount() == 2 && second != first && second == windows.highest();
  });
  windows.minimise(second);
  require("the first window again", [&] { return windows.active() == first; });
  screen.press({XK_Tab});
  readScreen({"focus push button: Language: English", "press push button: DOWNLOAD_DRIVER",
              "focus push button: BACK"});
}

}  // namespace
}  // namespace vantorel::test
