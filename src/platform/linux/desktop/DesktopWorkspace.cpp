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

DesktopWorkspace::DesktopWorkspace(std::function<void()> openSettings)
    : openRemedy(std::move(openSettings)) {}

void DesktopWorkspace::open(const std::string& address) {
  if (address.rfind(settingsScheme, 0) == 0) {
    if (openRemedy) openRemedy();
    return;
  }
  if (!openInBrowser(address)) std::cerr << "vantorel: cannot open " << address << std::endl;
}

}  // namespace vantorel
