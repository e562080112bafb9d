#include "RemedyView.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QScrollArea>
#include <stdexcept>

#include "NothingClipped.h"
#include "OpenWindow.h"
#include "SectionTag.h"

namespace vantorel {
namespace {

const QString longText =
    QStringLiteral(
        "Log out, choose a session of another kind on the login screen, and start the program there. ")
        .repeated(3);
const QString longChineseText =
    QStringLiteral("请注销，在登录界面选择另一种会话，然后在那里启动。").repeated(6);
const Remedy remedy{{longText, longText, longText}, {longChineseText, longChineseText, longChineseText}};

class RemedyViewTest : public testing::TestWithParam<AppLanguage> {
 protected:
  RemedyViewTest() {
    host.state.chooseLanguage(GetParam());
    host.window->showRemedy(remedy);
    host.settle();
  }

  RemedyView& view() const {
    for (QWidget* const widget : host.window->findChildren<QWidget*>()) {
      if (auto* const found = dynamic_cast<RemedyView*>(widget)) return *found;
    }
    throw std::runtime_error("no remedy shows");
  }

  OpenWindow host;
};

TEST_P(RemedyViewTest, HasRoomForLongTexts) {
  for (const int width : {1000, 1100, 1400}) {
    host.resizeContent(width, 800);
    expectNothingClipped(*view().findChild<QScrollArea*>()->widget());
  }
}

TEST_P(RemedyViewTest, ExplainsItsTags) {
  int count = 0;
  for (const QLabel* const label : view().findChildren<QLabel*>()) {
    if (dynamic_cast<const SectionTag*>(label) == nullptr) continue;
    ++count;
    const QString end = GetParam() == AppLanguage::chinese ? QStringLiteral("。") : QStringLiteral(".");
    EXPECT_TRUE(label->toolTip().endsWith(end)) << label->text().toStdString();
  }
  EXPECT_EQ(count, 3);
}

INSTANTIATE_TEST_SUITE_P(Languages, RemedyViewTest,
                         testing::Values(AppLanguage::english, AppLanguage::chinese),
                         [](const auto& language) {
                           return language.param == AppLanguage::english ? "English" : "Chinese";
                         });

}  // namespace
}  // namespace vantorel
