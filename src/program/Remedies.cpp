#include "Remedies.h"

namespace vantorel {

Remedy remedyForMissingXServer() {
  return {
      {QStringLiteral("This session has no X server, so Vantorel can press no keys and move no mouse."),
       QStringLiteral("Vantorel hands keys and mouse movements to the desktop through the X server's XTEST "
                      "extension."),
       QStringLiteral("Log out, choose a session of the kind \"X11\" or \"Xorg\" on the login screen, and "
                      "start Vantorel there.")},
      {QStringLiteral("此会话没有 X 服务器，因此 Vantorel 无法按键，也无法移动鼠标。"),
       QStringLiteral("Vantorel 通过 X 服务器的 XTEST 扩展把按键和鼠标移动交给桌面。"),
       QStringLiteral("请注销，在登录界面选择 “X11” 或 “Xorg” 会话，然后在那里启动 Vantorel。")}};
}

Remedy remedyForMissingExtension() {
  return {
      {QStringLiteral("This X server lacks the XTEST extension, so Vantorel can press no keys and move no "
                      "mouse."),
       QStringLiteral("Vantorel hands keys and mouse movements to the desktop through that extension."),
       QStringLiteral("Switch the XTEST extension on in the X server's configuration, or start the server "
                      "without the option that switches it off, and log in again.")},
      {QStringLiteral("此 X 服务器缺少 XTEST 扩展，因此 Vantorel 无法按键，也无法移动鼠标。"),
       QStringLiteral("Vantorel 通过该扩展把按键和鼠标移动交给桌面。"),
       QStringLiteral("请在 X 服务器的配置中启用 XTEST 扩展，或去掉禁用它的启动选项，然后重新登录。")}};
}

Remedy remedyForMissingBrowser(const std::string& address) {
  const QString page = QString::fromStdString(address);
  return {
      {QStringLiteral("This desktop could not open ") + page,
       QStringLiteral("The page is shown by a web browser, and the desktop found none to start."),
       QStringLiteral("Install a web browser or choose one in the desktop's settings and try again, or open "
                      "the address yourself.")},
      {QStringLiteral("此桌面无法打开 ") + page,
       QStringLiteral("该页面由浏览器显示，但桌面没有找到可以启动的浏览器。"),
       QStringLiteral("请安装浏览器，或在桌面设置中选择浏览器后重试；也可以自己打开该地址。")}};
}

}  // namespace vantorel
