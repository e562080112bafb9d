#pragma once

#include <functional>

#include "AppLanguage.h"

namespace vantorel {

/// Tells the interface language of the moment; asked afresh each time a name is formatted.
using CurrentLanguage = std::function<AppLanguage()>;

}  // namespace vantorel
