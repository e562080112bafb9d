#pragma once

#include <QPushButton>
#include <QWidget>
#include <memory>
#include <string>

#include "EmbeddedPlatform.h"
#include "KeyPickerSheet.h"
#include "KeyPickerView.h"
#include "MappingList.h"
#include "MappingRow.h"
#include "RetroScrollArea.h"
#include "SharedInstances.h"
#include "WindowState.h"

namespace vantorel {

/// Where the settings hold the mappings.
inline constexpr const char* mappingsKey = "gamepad_keyboard_mappings";

/// A window with a plain button, the mapping list in a scrolling page, and the key picker's sheet, on a
/// machine in memory.
class PickerWindow {
 public:
  explicit PickerWindow(QSize size = {900, 800});

  /// Shows the window and waits until it has the keyboard.
  void activate();

  /// Presses and releases `button` on a controller, which is plugged in if there is none yet.
  void pressOnController(GamepadButton button);

  MappingRow* row(GamepadButton button) const { return list->row(button); }

  /// The mappings as they are stored in the settings.
  std::string storedMappings() const;

  EmbeddedPlatform platform;
  SharedInstances instances{platform.ports()};
  WindowState state{platform.ports()};
  QWidget window;
  QPushButton* other;
  RetroScrollArea* page;
  MappingList* list;
  KeyPickerSheet* sheet;

 private:
  std::shared_ptr<EmbeddedController> controller;
};

}  // namespace vantorel
