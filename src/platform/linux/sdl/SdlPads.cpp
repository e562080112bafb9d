#include "SdlPads.h"

#include <algorithm>
#include <set>
#include <utility>

#include "ConnectionOrder.h"

namespace vantorel {

void SdlPads::update(const PadEvents& events) {
  bool anyOpened = false;
  do {  // a pad that has just been opened tells its state with the next look
    SDL_PumpEvents();
    dispatch(events);
    anyOpened = followDevices(events);
  } while (anyOpened);
}

void SdlPads::addTo(std::vector<pollfd>& watched) const {
  for (const auto& [id, pad] : pads_) {
    if (pad) watched.push_back({pad->descriptor(), POLLIN, 0});
  }
}

bool SdlPads::drainNodes() {
  bool areAllThere = true;
  for (const auto& [id, pad] : pads_) {
    if (pad && pad->descriptor() >= 0 && !pad->drainNode()) areAllThere = false;
  }
  return areAllThere;
}

void SdlPads::dispatch(const PadEvents& events) {
  const auto pass = [&](SDL_JoystickID id, const SDL_Event& event) {
    const auto found = pads_.find(id);
    if (found == pads_.end() || !found->second) return;
    SdlPad& pad = *found->second;
    pad.handle(event, [&](GamepadButton button, bool isPressed) {
      events.changed(pad.controller(), button, isPressed);
    });
  };
  SDL_Event event{};
  while (SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) > 0) {
    switch (event.type) {
      case SDL_CONTROLLERBUTTONDOWN:
      case SDL_CONTROLLERBUTTONUP:
        pass(event.cbutton.which, event);
        break;
      case SDL_CONTROLLERAXISMOTION:
        pass(event.caxis.which, event);
        break;
      case SDL_JOYDEVICEADDED:
      case SDL_JOYDEVICEREMOVED:
        devicesChanged_ = true;
        break;
      default:
        break;
    }
  }
}

bool SdlPads::followDevices(const PadEvents& events) {
  if (!std::exchange(devicesChanged_, false)) return false;
  closeMissing(events);
  return openNew(events);
}

void SdlPads::closeMissing(const PadEvents& events) {
  std::set<SDL_JoystickID> present;
  for (int index = 0; index < SDL_NumJoysticks(); ++index) {
    present.insert(SDL_JoystickGetDeviceInstanceID(index));
  }
  for (auto entry = pads_.begin(); entry != pads_.end();) {
    if (present.contains(entry->first)) {
      ++entry;
      continue;
    }
    const auto controller = entry->second ? entry->second->controller() : nullptr;
    entry = pads_.erase(entry);
    if (controller) events.disconnected(controller);
  }
}

bool SdlPads::openNew(const PadEvents& events) {
  std::vector<std::shared_ptr<LinuxController>> opened;
  for (int index = 0; index < SDL_NumJoysticks(); ++index) {
    const auto [entry, isNew] = pads_.try_emplace(SDL_JoystickGetDeviceInstanceID(index));
    if (!isNew) continue;
    entry->second = SdlPad::open(index);
    if (!entry->second) continue;
    opened.push_back(entry->second->controller());
  }
  // SDL has them in the order of their names.
  std::stable_sort(opened.begin(), opened.end(), [](const auto& one, const auto& other) {
    return connectionOrder(one->node()) < connectionOrder(other->node());
  });
  for (const auto& controller : opened) events.connected(controller);
  return !opened.empty();
}

}  // namespace vantorel
