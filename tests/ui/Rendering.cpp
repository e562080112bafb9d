#include "Rendering.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "AppTheme.h"

namespace vantorel {

QImage rendered(QWidget& widget, double scale) {
  const QSize size(static_cast<int>(std::ceil(widget.width() * scale)),
                   static_cast<int>(std::ceil(widget.height() * scale)));
  QImage image(size, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(AppTheme::background());
  widget.render(&image, {}, {}, QWidget::DrawChildren);
  image.setDevicePixelRatio(1);
  return image;
}

int runLength(const QImage& image, QPoint from, QPoint step) {
  const QRgb color = image.pixel(from);
  int length = 0;
  for (QPoint at = from; image.valid(at) && image.pixel(at) == color; at += step) ++length;
  return length;
}

int countOf(const QImage& image, const QColor& color) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == color.rgb() ? 1 : 0;
  }
  return count;
}

QColor blended(const QColor& top, double opacity, const QColor& bottom) {
  const auto channel = [opacity](int above, int below) {
    return static_cast<int>(std::lround(above * opacity + below * (1 - opacity)));
  };
  return {channel(top.red(), bottom.red()), channel(top.green(), bottom.green()),
          channel(top.blue(), bottom.blue())};
}

testing::AssertionResult isNearly(const QColor& actual, const QColor& expected) {
  constexpr int rounding = 2;
  if (std::abs(actual.red() - expected.red()) <= rounding &&
      std::abs(actual.green() - expected.green()) <= rounding &&
      std::abs(actual.blue() - expected.blue()) <= rounding) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << actual.name().toStdString() << " is not "
                                     << expected.name().toStdString();
}

int drawingThreads() {
  int threads = 0;
  for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
    std::string name;
    std::getline(std::ifstream(task.path() / "comm") >> std::ws, name);
    if (name == "Thread (pooled)") ++threads;
  }
  return threads;
}

std::string scaleName(const testing::TestParamInfo<double>& scale) {
  return "Scale" + std::to_string(std::lround(scale.param * 100));
}

}  // namespace vantorel
