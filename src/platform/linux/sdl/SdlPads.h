#pragma once

#include <SDL.h>
#include <poll.h>

#include <map>
#include <memory>
#include <vector>

#include "PadEvents.h"
#include "SdlPad.h"

namespace vantorel {

/// All pads that are plugged in. SDL's thread.
class SdlPads {
 public:
  /// Lets SDL look at its devices, takes over what changed, and tells of it.
  void update(const PadEvents& events);

  /// Adds the nodes that are to be watched.
  void addTo(std::vector<pollfd>& watched) const;

  /// Empties the watched nodes. False when one of them has ended: its pad is about to go.
  bool drainNodes();

 private:
  void dispatch(const PadEvents& events);
  bool followDevices(const PadEvents& events);
  void closeMissing(const PadEvents& events);
  bool openNew(const PadEvents& events);

  /// By SDL's number of the instance, which grows with every pad; null for one that could not be opened.
  std::map<SDL_JoystickID, std::unique_ptr<SdlPad>> pads_;
  bool devicesChanged_ = true;
};

}  // namespace vantorel
