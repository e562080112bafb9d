#pragma once

#include <QObject>
#include <QWindow>

#include "Application.h"
#include "StatusBar.h"
#include "Subscription.h"

namespace vantorel {

/// The program among the running ones. Under the accessory policy all its windows, also those shown later,
/// are out of the task bar and the window switcher, but only while the desktop has a status bar: otherwise
/// nothing would lead back to them. Needs a QGuiApplication. Main thread.
class QtApplication : public QObject, public Application {
 public:
  /// `statusBar` outlives this object.
  explicit QtApplication(const StatusBar& statusBar);

  void setActivationPolicy(ActivationPolicy newPolicy) override;
  void terminate() override;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void apply();

  const StatusBar& bar;
  ActivationPolicy policy = ActivationPolicy::regular;
  bool windowsAreListed = true;
  Subscription barChange;
};

}  // namespace vantorel
