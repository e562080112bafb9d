#pragma once

#include <array>

namespace vantorel {

/// The command line that Qt is told of where it has nothing to read there: the program's name alone. It
/// outlives the application object.
struct QtArguments {
  int count = 1;
  std::array<char, 9> name{'v', 'a', 'n', 't', 'o', 'r', 'e', 'l', '\0'};
  std::array<char*, 2> values{name.data(), nullptr};
};

}  // namespace vantorel
