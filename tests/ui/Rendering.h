#pragma once

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QWidget>

namespace vantorel {

/// `widget` and its children on the window's plain background, at `scale` pixels a point.
QImage rendered(QWidget& widget, double scale = 1);

/// The number of pixels with the colour of `from`, counted from there on in the direction of `step`.
int runLength(const QImage& image, QPoint from, QPoint step);

/// The number of pixels of exactly this colour.
int countOf(const QImage& image, const QColor& color);

/// `top` at `opacity` over `bottom`.
QColor blended(const QColor& top, double opacity, const QColor& bottom);

/// Whether no channel of the two differs by more than the rounding of opacities.
testing::AssertionResult isNearly(const QColor& actual, const QColor& expected);

/// The number of threads that Qt has made to draw with.
int drawingThreads();

/// The scale of a parameterized test as a part of its name.
std::string scaleName(const testing::TestParamInfo<double>& scale);

/// All scales at which lines must be sharp.
inline auto allScales() { return testing::Values(1.0, 1.25, 1.5, 2.0); }

}  // namespace vantorel
