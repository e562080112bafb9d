#pragma once

#include <map>
#include <memory>
#include <string>

namespace vantorel {

class VirtualPad;

/// Pads without hardware: real SDL game controllers with every button and axis, worked by lines of text. They
/// are a means for tests and demonstrations; from SDL on they take the way of every other pad. SDL's thread.
///
///     attach NAME [VENDOR PRODUCT]    plugs a pad in; the ids are hexadecimal USB numbers, which SDL takes
///     the
///                                     pad's type from (045e 028e is an Xbox 360 pad)
///     detach NAME                     unplugs it
///     button NAME BUTTON 0|1          lets a button up or presses it; BUTTON as mappings are stored:
///     buttonA,
///                                     leftShoulder, leftTrigger, dpadUp, menu ...
///     axis NAME AXIS VALUE            AXIS is leftx, lefty, rightx, righty, triggerleft or triggerright;
///     VALUE
///                                     from -32768 to 32767. Sticks are positive to the right and downwards;
///                                     triggers rest at -32768
///
/// A NAME with blanks stands in double quotes.
class VirtualPads {
 public:
  VirtualPads();
  VirtualPads(const VirtualPads&) = delete;
  VirtualPads& operator=(const VirtualPads&) = delete;
  /// Unplugs all of them.
  ~VirtualPads();

  /// Carries `line` out; SDL sees it with its next look. An empty line is nothing. Throws
  /// std::invalid_argument, with the reason, for a line that cannot be carried out.
  void execute(const std::string& line);

 private:
  VirtualPad& pad(const std::string& name);

  std::map<std::string, std::unique_ptr<VirtualPad>> pads_;
};

}  // namespace vantorel
