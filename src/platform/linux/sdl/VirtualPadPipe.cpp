#include "VirtualPadPipe.h"

#include <fcntl.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iostream>

namespace vantorel {

VirtualPadPipe::VirtualPadPipe() {
  const char* const name = std::getenv("VANTOREL_VIRTUAL_PADS");
  if (name == nullptr) return;
  pipe_ = PolledFile::open(name, O_RDWR);  // for writing too: a pipe that always has a writer never ends
  if (!pipe_.isOpen()) {
    std::cerr << "vantorel: cannot read virtual pads from " << name << ": " << std::strerror(errno)
              << std::endl;
  }
}

std::vector<std::string> VirtualPadPipe::takeLines() {
  pipe_.readInto(rest_);
  std::vector<std::string> lines;
  std::size_t begin = 0;
  for (auto end = rest_.find('\n'); end != std::string::npos; end = rest_.find('\n', begin)) {
    lines.push_back(rest_.substr(begin, end - begin));
    begin = end + 1;
  }
  rest_.erase(0, begin);
  return lines;
}

}  // namespace vantorel
