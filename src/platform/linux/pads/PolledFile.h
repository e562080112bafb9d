#pragma once

#include <cstdint>
#include <string>

namespace vantorel {

/// A file descriptor of its own that is watched with poll(2) and read without ever blocking. One thread.
class PolledFile {
 public:
  /// What reading found.
  enum class State : std::uint8_t {
    quiet,   ///< nothing was waiting
    active,  ///< something was waiting and has been read
    ended,   ///< the end of the file, or its device is gone; the file is now closed
  };

  PolledFile() = default;
  /// Takes `descriptor`, which must be non-blocking; a negative one is no file.
  explicit PolledFile(int descriptor) : descriptor_(descriptor) {}
  PolledFile(PolledFile&& other) noexcept;
  PolledFile& operator=(PolledFile&& other) noexcept;
  PolledFile(const PolledFile&) = delete;
  PolledFile& operator=(const PolledFile&) = delete;
  ~PolledFile() { close(); }

  /// Opens `path` with `flags` of open(2), non-blocking; no file when that fails, with the reason in errno.
  static PolledFile open(const std::string& path, int flags);

  bool isOpen() const { return descriptor_ >= 0; }
  /// Negative when there is no file; poll(2) then overlooks it.
  int descriptor() const { return descriptor_; }

  /// Reads all that is waiting and throws it away.
  State drain();
  /// Reads all that is waiting and appends it to `text`.
  State readInto(std::string& text);

 private:
  template <class Sink>
  State readAll(Sink sink);
  void close();

  int descriptor_ = -1;
};

}  // namespace vantorel
