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

}  // namespace vantorel
