#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "BuiltInFonts.h"

namespace vantorel {
namespace {

/// The one Qt application of this test program, without a display and untouched by the user's desktop.
class ApplicationEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* variable : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI",
                                 "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME"}) {
      qunsetenv(variable);
    }
    application = std::make_unique<QApplication>(count, arguments);
    useBuiltInFonts();
  }

  void TearDown() override { application.reset(); }

 private:
  int count = 1;
  char name[8] = "test_ui";
  char* arguments[2] = {name, nullptr};
  std::unique_ptr<QApplication> application;
};

[[maybe_unused]] const auto* const environment =
    testing::AddGlobalTestEnvironment(new ApplicationEnvironment);  // owned by the test library

}  // namespace
}  // namespace vantorel
