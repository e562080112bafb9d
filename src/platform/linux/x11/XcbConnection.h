#pragma once

#include <xcb/xcb.h>

#include <memory>
#include <optional>
#include <string>

namespace vantorel {

/// A connection to an X server. Any thread, as XCB allows it.
class XcbConnection {
 public:
  /// Connects to `display`, or to the one that the environment names. Throws std::runtime_error with a text
  /// for the user, "DISPLAY is not set" or "cannot open display NAME".
  explicit XcbConnection(const std::optional<std::string>& display = std::nullopt);

  xcb_connection_t* handle() const { return handle_.get(); }

  /// The root window of the display's own screen.
  xcb_window_t root() const { return root_; }

  /// Readable whenever the server sent something, and when the connection is lost.
  int fileDescriptor() const { return xcb_get_file_descriptor(handle()); }

  /// Whether the connection broke. Nothing can be sent or read from then on.
  bool isLost() const { return xcb_connection_has_error(handle()) != 0; }

  /// Whether the server has `extension`. A request of one that it lacks would end the connection.
  bool has(xcb_extension_t& extension) const;

  void flush() const { xcb_flush(handle()); }

  /// Returns when the server has carried out everything sent before. The events of that time are then queued.
  void sync() const;

 private:
  struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
  };
  std::unique_ptr<xcb_connection_t, Disconnect> handle_;
  xcb_window_t root_ = XCB_NONE;
};

}  // namespace vantorel
