#pragma once

#include <iostream>
#include <string_view>

namespace vantorel {

/// Tells the user of a problem: one line on standard error, after the program's name.
inline void complain(std::string_view message) { std::cerr << "vantorel: " << message << '\n'; }

}  // namespace vantorel
