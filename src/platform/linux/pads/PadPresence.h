#pragma once

#include <map>
#include <string>

#include "PadPlaces.h"

namespace vantorel {

/// Whether SDL may find a pad on this machine now: when that is sure not to be so, there is no need of SDL.
/// The question is put where SDL itself looks: to udev's database, and where SDL does without it, to the
/// directory of the nodes, each of which SDL then examines by itself. A variable of the environment that
/// names pads makes them possible, too. Any thread.
bool mayPadBeThere(const PadPlaces& places);

/// Whether SDL may take the input device of which udev says `properties` for a pad. One that udev has no
/// class for, perhaps because it has not come to it yet, is examined by SDL, which asks for `absoluteAxes`:
/// the kernel's bits of them as /sys tells them, empty when it does not.
bool mayBePad(const std::map<std::string, std::string>& properties, const std::string& absoluteAxes);

}  // namespace vantorel
