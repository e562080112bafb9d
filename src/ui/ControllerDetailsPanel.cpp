#include "ControllerDetailsPanel.h"

#include "BuiltInFonts.h"
#include "LongestTexts.h"
#include "TextLine.h"

namespace vantorel {

namespace {

/// A product category of more than the usual length fits into these at the least width of the window.
constexpr int linesOfType = 3;

constexpr const char* tagText = "DEVICE_SPECS";
constexpr BilingualText tagHint{"Shows what the connected controller is.", "显示所连接手柄的信息。"};
constexpr BilingualText typeName{"TYPE", "类型"};
constexpr BilingualText extendedName{"EXTENDED", "扩展手柄"};
constexpr BilingualText familyName{"FAMILY", "系列"};
constexpr BilingualText driverName{"360_DRIVER", "360驱动"};
constexpr BilingualText lastKeyName{"LAST_KEY", "最近按键"};
constexpr BilingualText yes{"YES", "是"};
constexpr BilingualText no{"NO", "否"};
constexpr const char* probeText = "START_PROBE";
constexpr BilingualText probeName{"START_PROBE", "开始检测"};
constexpr BilingualText probeHint{"Reports in the log the first button that is pressed within ten seconds.",
                                  "在日志中报告十秒内按下的第一个按钮。"};

QString line(AppLanguage language, const BilingualText& name, const QString& value) {
  return name.in(language) + QStringLiteral(": ") + value;
}

QString answer(AppLanguage language, bool isTrue) { return (isTrue ? yes : no).in(language); }

QString familyLine(AppLanguage language, ControllerType controllerType) {
  return line(language, familyName, fromCore(displayText(controllerType)));
}

QString lastKeyLine(AppLanguage language, std::optional<KeyboardKey> key) {
  return line(language, lastKeyName, key ? fromCore(displayName(*key, language)) : QStringLiteral("---"));
}

// All lines that can come, so that room for the longest is kept.

QStringList familyLines(AppLanguage language) {
  QStringList lines;
  for (const auto type : {ControllerType::unknown, ControllerType::xbox, ControllerType::ps4,
                          ControllerType::ps5, ControllerType::switchPro}) {
    lines += familyLine(language, type);
  }
  return lines;
}

QStringList lastKeyLines(AppLanguage language) {
  QStringList names;
  for (const KeyboardKey key : allKeyboardKeys()) names += fromCore(displayName(key, language));
  QStringList lines;
  for (const QString& name : longestOf(names)) lines += line(language, lastKeyName, name);
  return lines;
}

/// The lines of a name and an answer.
auto answerLines(const BilingualText& name) {
  return [name](AppLanguage language) {
    return QStringList{line(language, name, answer(language, true)),
                       line(language, name, answer(language, false))};
  };
}

}  // namespace

ControllerDetailsPanel::ControllerDetailsPanel(WindowState& windowState, QWidget* parent)
    : Panel(windowState, retroCard(AppTheme::borderColor()), parent),
      tag(addTag()),
      extended(addLine()),
      driver(addLine()),
      lastKey(addLine()),
      family(addLine()),
      type(addLine()) {
  addSpace();
  probe = addButton(AppTheme::secondaryAccent(), [this] { state.startProbe(); });
  tag->setText(QString::fromUtf8(tagText));
  probe->setText(QString::fromUtf8(probeText));
  extended->reserveFor(longestInEach(answerLines(extendedName)));
  driver->reserveFor(longestInEach(answerLines(driverName)));
  lastKey->reserveFor(longestInEach(lastKeyLines));
  family->reserveFor(longestInEach(familyLines));
  type->reserveLines(linesOfType);
  const GameControllerManager& manager = state.controllerManager;
  follow([this] { refresh(); }, manager.gamepadType, manager.isExtendedGamepad,
         manager.detectedControllerType, manager.is360ControllerInstalled, manager.lastKeyboardKeyPressed);
}

void ControllerDetailsPanel::refresh() {
  const GameControllerManager& manager = state.controllerManager;
  const AppLanguage language = state.localization.currentLanguage();
  tag->setToolTip(local(tagHint));
  extended->setText(line(language, extendedName, answer(language, manager.isExtendedGamepad)));
  driver->setText(line(language, driverName, answer(language, manager.is360ControllerInstalled)));
  lastKey->setText(lastKeyLine(language, manager.lastKeyboardKeyPressed));
  family->setText(familyLine(language, manager.detectedControllerType));
  type->setText(line(language, typeName, foreignText(manager.gamepadType.get())));
  probe->setAccessibleName(local(probeName));
  probe->setToolTip(local(probeHint));
}

}  // namespace vantorel
