#pragma once

#include <QString>

#include "StatusBar.h"
#include "TemplateIcon.h"

namespace vantorel {

/// How a status item shows in one kind of status bar; destroying it takes it away. Main thread.
class StatusFace {
 public:
  virtual ~StatusFace() = default;

  virtual void setIcon(const TemplateIcon& icon, const QString& description) = 0;
  virtual void setMenu(const Menu& menu) = 0;
};

}  // namespace vantorel
