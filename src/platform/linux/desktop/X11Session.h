#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// Qt's own connection to the X server, with the few requests that Qt has no call for. Main thread. Valid as
/// long as the QGuiApplication is.
class X11Session {
 public:
  /// The session that the program draws in; none where it draws elsewhere.
  static std::optional<X11Session> current();

  xcb_connection_t* connection() const { return server; }
  int screenNumber() const { return screen; }
  xcb_window_t root() const;

  xcb_atom_t atom(const std::string& name) const;

  /// The 32-bit values of a property of any type; empty when it is not there or the window is gone.
  std::vector<std::uint32_t> property(xcb_window_t window, xcb_atom_t name) const;

  /// Replaces a property; no values remove it.
  void setProperty(xcb_window_t window, xcb_atom_t name, xcb_atom_t type,
                   const std::vector<std::uint32_t>& values) const;

  /// The window that owns a selection, or XCB_NONE.
  xcb_window_t selectionOwner(xcb_atom_t selection) const;

  /// Sends a client message of up to five values about `window` to `receiver`.
  void send(xcb_window_t receiver, std::uint32_t eventMask, xcb_window_t window, xcb_atom_t type,
            const std::vector<std::uint32_t>& values) const;

 private:
  X11Session(xcb_connection_t* connection, int screenNumber) : server(connection), screen(screenNumber) {}

  xcb_connection_t* server;
  int screen;
};

}  // namespace vantorel
