#include "QtTypeRegistry.h"

#include <QMetaType>

namespace vantorel {
namespace {

/// Any type that Qt does not know by itself.
struct FirstType {};

}  // namespace

void makeQtTypeRegistry() { qRegisterMetaType<FirstType>("vantorel::FirstType"); }

}  // namespace vantorel
