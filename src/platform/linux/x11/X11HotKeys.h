#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <optional>

#include "HotKeys.h"
#include "MainQueue.h"
#include "ModifierMasks.h"
#include "XcbConnection.h"

namespace vantorel {

/// Hot keys as passive grabs on an X server's root window, whatever the locks are; Command is the Super key
/// and Option is Alt. They follow changes of the keymap. Main thread.
class X11HotKeys : public HotKeys {
 public:
  /// `xcbConnection` is used by nobody else; it and `queue` outlive this object. `onConnectionLost` is called
  /// on the main queue, once, when the connection breaks.
  X11HotKeys(const XcbConnection& xcbConnection, MainQueue& queue, std::function<void()> onConnectionLost);
  X11HotKeys(const X11HotKeys&) = delete;
  X11HotKeys& operator=(const X11HotKeys&) = delete;
  ~X11HotKeys() override = default;

  void installHandler(std::function<void()> handler) override;

  /// The status is -9878 when another client or this one has the combination, -9879 when the keyboard has no
  /// such combination. The references end before this object.
  HotKeyRegistration registerHotKey(const HotKey& hotKey) override;

  /// To be called whenever `fileDescriptor()` is readable.
  void processEvents();

  int fileDescriptor() const { return connection.fileDescriptor(); }

 private:
  /// A combination, with the bits that the present keymap gives to its modifiers and to the locks.
  struct Combination {
    xcb_keycode_t key = 0;
    std::uint32_t carbonModifiers = 0;
    std::optional<std::uint16_t> modifiers;  ///< none when the keymap lacks one of them
    std::uint16_t locks = 0;
  };
  class Reference;

  Combination combine(xcb_keycode_t key, std::uint32_t carbonModifiers) const;
  bool isRegistered(const Combination& combination) const;
  std::int32_t grab(const Combination& combination) const;
  void ungrab(const Combination& combination) const;
  void handle(const xcb_generic_event_t& event);
  void handlePress(const xcb_key_press_event_t& press);
  void followKeymap();

  const XcbConnection& connection;
  const std::optional<std::uint8_t> xkbEventType;  ///< of the events that tell of a change of the keymap
  MainQueue& mainQueue;
  std::function<void()> connectionLost;  ///< null once posted
  std::shared_ptr<std::function<void()>> pressHandler = std::make_shared<std::function<void()>>();
  std::list<Combination> combinations;
  ModifierMasks masks;
  bool areMasksStale = true;
  std::optional<xcb_keycode_t> heldKey;  ///< the hot key that is down
};

}  // namespace vantorel
