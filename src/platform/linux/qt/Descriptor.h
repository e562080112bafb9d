#pragma once

#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace vantorel {

/// An open file descriptor, closed at the end.
class Descriptor {
 public:
  /// Takes over `number`, the answer of the system call named `call`; throws std::system_error when that
  /// failed.
  Descriptor(int number, const char* call) : number_(number) {
    if (number < 0) throw std::system_error(errno, std::generic_category(), call);
  }
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }

  int number() const { return number_; }

 private:
  int number_;
};

}  // namespace vantorel
