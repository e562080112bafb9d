#include "Screenshot.h"

#include <QApplication>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QPixmap>
#include <algorithm>

#include "BuiltInFonts.h"
#include "MainWindow.h"
#include "QtArguments.h"

namespace vantorel {
namespace {

/// Makes the window so high that nothing of its page has to be scrolled to.
void growToContent(MainWindow& window) {
  const RetroScrollArea& area = *window.contentView()->scrollArea();
  const int hidden = area.widget()->height() - area.viewport()->height();
  window.resize(window.width(), window.height() + std::max(hidden, 0));
}

}  // namespace

std::optional<std::string> drawScreenshot(WindowState& state, const std::string& file) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // What the offscreen plugin misses of a desktop does not matter to a picture.
  QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  QtArguments arguments;
  const QApplication application(arguments.count, arguments.values.data());
  useBuiltInFonts();

  MainWindow window(state, {[] {}, [] {}, [] {}});
  window.resize(ContentView::idealSize);
  window.show();
  if (!state.selectedGamepadButton.get()) window.contentView()->setFocus();  // no control shows the focus
  QApplication::processEvents();
  growToContent(window);
  QApplication::processEvents();

  QImageWriter writer(QString::fromStdString(file), "png");
  if (writer.write(window.grab().toImage())) return std::nullopt;
  return "cannot write " + file + ": " + writer.errorString().toStdString();
}

}  // namespace vantorel
