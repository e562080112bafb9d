#include "DesktopWorkspace.h"

#include <QDesktopServices>
#include <QUrl>
#include <iostream>
#include <utility>

namespace vantorel {
namespace {

constexpr const char* settingsScheme = "x-apple.systempreferences:";

bool openInBrowser(const std::string& address) {
  const QUrl url(QString::fromStdString(address), QUrl::StrictMode);
  const bool isWeb = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
  return url.isValid() && isWeb && QDesktopServices::openUrl(url);
}

}  // namespace

DesktopWorkspace::DesktopWorkspace(Handlers programHandlers) : handlers(std::move(programHandlers)) {}

void DesktopWorkspace::open(const std::string& address) {
  if (address.rfind(settingsScheme, 0) == 0) {
    handlers.openSettings();
    return;
  }
  if (openInBrowser(address)) return;
  std::cerr << "vantorel: cannot open " << address << std::endl;
  handlers.cannotOpen(address);
}

}  // namespace vantorel
