#pragma once

#include <QString>

#include "AppLanguage.h"

namespace vantorel {

/// What the user can do about something that is missing on this desktop.
struct Remedy {
  /// The same in one language; each is one sentence or a few.
  struct Text {
    QString what;      ///< what is missing
    QString why;       ///< why the program needs it
    QString nextStep;  ///< what to do now
  };

  Text english;
  Text chinese;

  const Text& in(AppLanguage language) const { return language == AppLanguage::chinese ? chinese : english; }
};

}  // namespace vantorel
