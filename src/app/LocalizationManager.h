#pragma once

#include "AppLanguage.h"
#include "Published.h"
#include "UserDefaults.h"

namespace vantorel {

/// The language of the interface: English at first, then as the user chose it. Main thread.
class LocalizationManager {
 public:
  /// Restores the saved language. A saved text that names none is left as it is.
  explicit LocalizationManager(UserDefaults& userDefaults);

  /// The running program's instance, made on first use.
  static LocalizationManager& shared();

  const Published<AppLanguage>& currentLanguage() const { return language; }

  /// Saves the choice and tells the observers, also when nothing changes.
  void setCurrentLanguage(AppLanguage chosen);

 private:
  UserDefaults& defaults;
  Published<AppLanguage> language{AppLanguage::english};
};

}  // namespace vantorel
