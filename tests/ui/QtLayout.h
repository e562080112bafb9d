#pragma once

#include <QTextLayout>

namespace vantorel {

/// One line of text as Qt lays it out.
class QtLayout {
 public:
  QtLayout(const QString& text, const QFont& font) : layout(text, font) {
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
  }

  QTextLine line() const { return layout.lineAt(0); }
  QList<QGlyphRun> runs() const { return layout.glyphRuns(); }

 private:
  QTextLayout layout;
};

}  // namespace vantorel
