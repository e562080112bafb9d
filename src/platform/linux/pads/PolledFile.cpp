#include "PolledFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <string_view>
#include <utility>

namespace vantorel {

PolledFile::PolledFile(PolledFile&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

PolledFile& PolledFile::operator=(PolledFile&& other) noexcept {
  if (this != &other) {
    close();
    descriptor_ = std::exchange(other.descriptor_, -1);
  }
  return *this;
}

PolledFile PolledFile::open(const std::string& path, int flags) {
  return PolledFile(::open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC));
}

template <class Sink>
PolledFile::State PolledFile::readAll(Sink sink) {
  State state = State::quiet;
  std::array<char, 4096> buffer{};
  while (isOpen()) {
    const ssize_t length = ::read(descriptor_, buffer.data(), buffer.size());
    if (length > 0) {
      sink(std::string_view(buffer.data(), static_cast<std::size_t>(length)));
      state = State::active;
    } else if (length < 0 && errno == EINTR) {
      continue;
    } else if (length < 0 && errno == EAGAIN) {
      break;
    } else {
      close();
      return State::ended;
    }
  }
  return state;
}

PolledFile::State PolledFile::drain() {
  return readAll([](std::string_view) {});
}

PolledFile::State PolledFile::readInto(std::string& text) {
  return readAll([&](std::string_view part) { text += part; });
}

void PolledFile::close() {
  if (isOpen()) ::close(std::exchange(descriptor_, -1));
}

}  // namespace vantorel
