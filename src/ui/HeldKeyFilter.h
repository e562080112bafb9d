#pragma once

#include <QKeyEvent>
#include <QObject>

namespace vantorel {

/// An event filter for the application that keeps a held Return, Enter or space key from pressing a button
/// again and again.
///
/// An X server repeats a held key as a release and a press at the same instant. Qt marks such a press as a
/// repeat only if it has arrived by the time the release is handled; the others are dropped here.
class HeldKeyFilter : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isRepeat(const QKeyEvent& press) const;

  int releasedKey = 0;
  quint64 releaseTime = 0;  ///< in the milliseconds of the X server; 0: unknown
};

}  // namespace vantorel
