#include "X11HotKeys.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include "XcbKeyCode.h"
#include "XcbReply.h"
#include "XkbClient.h"

namespace vantorel {
namespace {

// Carbon's numbers.
constexpr std::uint32_t cmdKey = 256;
constexpr std::uint32_t shiftKey = 512;
constexpr std::uint32_t optionKey = 2048;
constexpr std::uint32_t controlKey = 4096;
constexpr std::int32_t hotKeyExists = -9878;
constexpr std::int32_t hotKeyInvalid = -9879;

constexpr unsigned allModifiers = 0xff;  // a key event's state holds mouse buttons as well
constexpr std::uint8_t sentBySendEvent = 0x80;

/// The bits for `carbonModifiers`; none when there is none for one of them.
std::optional<std::uint16_t> stateBits(std::uint32_t carbonModifiers, const ModifierMasks& masks) {
  const std::pair<std::uint32_t, unsigned> known[] = {{cmdKey, masks.super},
                                                      {shiftKey, XCB_MOD_MASK_SHIFT},
                                                      {optionKey, masks.alt},
                                                      {controlKey, XCB_MOD_MASK_CONTROL}};
  unsigned bits = 0;
  for (const auto& [carbon, mask] : known) {
    if ((carbonModifiers & carbon) == 0) continue;
    if (mask == 0) return std::nullopt;
    bits |= mask;
    carbonModifiers &= ~carbon;
  }
  if (carbonModifiers != 0) return std::nullopt;
  return static_cast<std::uint16_t>(bits);
}

/// `modifiers` together with every subset of `locks`.
std::vector<std::uint16_t> withEveryLock(std::uint16_t modifiers, std::uint16_t locks) {
  std::vector<std::uint16_t> all;
  for (unsigned subset = locks;; subset = (subset - 1) & locks) {
    all.push_back(static_cast<std::uint16_t>(modifiers | subset));
    if (subset == 0) return all;
  }
}

}  // namespace

/// Holds one entry of the hot keys' list.
class X11HotKeys::Reference : public HotKeyReference {
 public:
  Reference(X11HotKeys& hotKeys, std::list<Combination>::iterator position)
      : owner(hotKeys), combination(position) {}
  Reference(const Reference&) = delete;
  Reference& operator=(const Reference&) = delete;
  ~Reference() override {
    owner.ungrab(*combination);
    owner.combinations.erase(combination);
    owner.processEvents();
  }

 private:
  X11HotKeys& owner;
  std::list<Combination>::iterator combination;
};

X11HotKeys::X11HotKeys(const XcbConnection& xcbConnection, MainQueue& queue,
                       std::function<void()> onConnectionLost)
    : connection(xcbConnection),
      xkbEventType(becomeXkbClient(xcbConnection)),
      mainQueue(queue),
      connectionLost(std::move(onConnectionLost)) {
  processEvents();
}

void X11HotKeys::installHandler(std::function<void()> handler) { *pressHandler = std::move(handler); }

HotKeyRegistration X11HotKeys::registerHotKey(const HotKey& hotKey) {
  constexpr std::uint32_t largestKeyCode = std::numeric_limits<std::uint16_t>::max();
  if (hotKey.keyCode > largestKeyCode) return {hotKeyInvalid, nullptr};
  const std::optional<xcb_keycode_t> key = xcbKeyCode(static_cast<std::uint16_t>(hotKey.keyCode));
  if (!key) return {hotKeyInvalid, nullptr};
  processEvents();
  const Combination combination = combine(*key, hotKey.modifiers);
  if (!combination.modifiers) return {hotKeyInvalid, nullptr};
  if (isRegistered(combination)) return {hotKeyExists, nullptr};
  if (const std::int32_t status = grab(combination); status != 0) return {status, nullptr};
  auto reference = std::make_unique<Reference>(*this, combinations.insert(combinations.end(), combination));
  processEvents();
  return {0, std::move(reference)};
}

/// Also to be called after requests that wait for a reply: events that came along with it are queued, and
/// `fileDescriptor()` tells nothing of them.
void X11HotKeys::processEvents() {
  for (;;) {
    while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection.handle())}) handle(*event);
    if (!std::exchange(areMasksStale, false)) break;
    followKeymap();
  }
  if (connection.isLost() && connectionLost) mainQueue.post(std::exchange(connectionLost, nullptr));
}

X11HotKeys::Combination X11HotKeys::combine(xcb_keycode_t key, std::uint32_t carbonModifiers) const {
  const auto modifiers = stateBits(carbonModifiers, masks);
  const auto locks = static_cast<std::uint16_t>(masks.locks & ~modifiers.value_or(0));
  return {key, carbonModifiers, modifiers, locks};
}

bool X11HotKeys::isRegistered(const Combination& combination) const {
  return std::any_of(combinations.begin(), combinations.end(), [&](const Combination& other) {
    return other.key == combination.key && other.carbonModifiers == combination.carbonModifiers;
  });
}

/// Grabs all of the combination or nothing; returns Carbon's status.
std::int32_t X11HotKeys::grab(const Combination& combination) const {
  std::vector<xcb_void_cookie_t> requests;
  for (const std::uint16_t modifiers : withEveryLock(*combination.modifiers, combination.locks)) {
    requests.push_back(xcb_grab_key_checked(connection.handle(), 1, connection.root(), modifiers,
                                            combination.key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
  }
  std::int32_t status = 0;
  for (const xcb_void_cookie_t& request : requests) {
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection.handle(), request));
    if (error) status = error->error_code == XCB_ACCESS ? hotKeyExists : hotKeyInvalid;
  }
  if (status != 0) ungrab(combination);
  return status;
}

void X11HotKeys::ungrab(const Combination& combination) const {
  if (!combination.modifiers) return;
  for (const std::uint16_t modifiers : withEveryLock(*combination.modifiers, combination.locks)) {
    xcb_ungrab_key(connection.handle(), combination.key, connection.root(), modifiers);
  }
  connection.flush();
}

void X11HotKeys::handle(const xcb_generic_event_t& event) {
  const unsigned type = event.response_type & ~unsigned{sentBySendEvent};
  if (type == xkbEventType) areMasksStale = true;
  switch (type) {
    case XCB_KEY_PRESS:
      handlePress(reinterpret_cast<const xcb_key_press_event_t&>(event));
      break;
    case XCB_KEY_RELEASE:
      if (heldKey == reinterpret_cast<const xcb_key_release_event_t&>(event).detail) heldKey.reset();
      break;
    case XCB_MAPPING_NOTIFY:
      areMasksStale = true;
      break;
    default:
      break;
  }
}

/// From a hot key's press until its release every key's events come here, its own repeats among them.
void X11HotKeys::handlePress(const xcb_key_press_event_t& press) {
  if (heldKey) return;
  const bool isHotKey =
      std::any_of(combinations.begin(), combinations.end(), [&](const Combination& combination) {
        return combination.key == press.detail &&
               combination.modifiers == (press.state & allModifiers & ~unsigned{combination.locks});
      });
  if (!isHotKey) return;
  heldKey = press.detail;
  mainQueue.post([handler = pressHandler] {
    if (const auto current = *handler) current();
  });
}

/// Where another client holds the combination under its new bits, it stays ungrabbed until the next change.
void X11HotKeys::followKeymap() {
  const ModifierMasks present = readModifierMasks(connection);
  if (present == masks) return;
  masks = present;
  for (Combination& combination : combinations) {
    ungrab(combination);
    combination = combine(combination.key, combination.carbonModifiers);
    if (combination.modifiers) grab(combination);
  }
}

}  // namespace vantorel
