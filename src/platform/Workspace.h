#pragma once

#include <string>

namespace vantorel {

/// Opens addresses with the program that the desktop has for them. Main thread.
class Workspace {
 public:
  virtual ~Workspace() = default;

  virtual void open(const std::string& address) = 0;
};

}  // namespace vantorel
