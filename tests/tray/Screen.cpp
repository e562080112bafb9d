#include "Screen.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace vantorel::test {
namespace {

constexpr int largestIcon = 64;

struct Freeing {
  void operator()(void* reply) const { std::free(reply); }
};

template <class Reply>
using Owned = std::unique_ptr<Reply, Freeing>;

/// Runs one of XCB's functions that wait for a reply; an error (a window that is gone) gives null.
template <class Reply, class Cookie>
Owned<Reply> answer(Reply* (*wait)(xcb_connection_t*, Cookie, xcb_generic_error_t**),
                    xcb_connection_t* connection, Cookie cookie) {
  xcb_generic_error_t* error = nullptr;
  Owned<Reply> reply(wait(connection, cookie, &error));
  const Owned<xcb_generic_error_t> ignored(error);
  return reply;
}

}  // namespace

Screen::Screen(const std::string& display) : connection(xcb_connect(display.c_str(), nullptr)) {
  if (xcb_connection_has_error(connection) != 0)
    throw std::runtime_error("cannot reach the display " + display);
  root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

Screen::~Screen() { xcb_disconnect(connection); }

xcb_window_t Screen::windowTitled(const std::string& title) const {
  for (const xcb_window_t window : allWindows()) {
    if (bytes(window, "_NET_WM_NAME") == title) return window;
  }
  return XCB_NONE;
}

std::vector<xcb_window_t> Screen::dockedIcons() const {
  std::vector<xcb_window_t> icons;
  const std::vector<xcb_window_t> topLevel = children(root);
  for (const xcb_window_t window : allWindows()) {
    const bool isTopLevel = std::find(topLevel.begin(), topLevel.end(), window) != topLevel.end();
    if (!isTopLevel && !bytes(window, "_XEMBED_INFO").empty() && isVisible(window) &&
        bytes(window, "_NET_WM_NAME") == "Vantorel") {
      icons.push_back(window);
    }
  }
  return icons;
}

bool Screen::menuIsOpen() const {
  for (const xcb_window_t window : children(root)) {
    const auto attributes =
        answer(xcb_get_window_attributes_reply, connection, xcb_get_window_attributes(connection, window));
    const auto geometry = answer(xcb_get_geometry_reply, connection, xcb_get_geometry(connection, window));
    if (!attributes || !geometry || attributes->override_redirect == 0) continue;
    const bool isLarge = geometry->width > largestIcon && geometry->height > largestIcon;
    if (isLarge && attributes->map_state == XCB_MAP_STATE_VIEWABLE) return true;
  }
  return false;
}

bool Screen::isVisible(xcb_window_t window) const {
  const auto attributes =
      answer(xcb_get_window_attributes_reply, connection, xcb_get_window_attributes(connection, window));
  return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool Screen::skipsTaskBar(xcb_window_t window) const {
  return hasState(window, "_NET_WM_STATE_SKIP_TASKBAR");
}

bool Screen::skipsPager(xcb_window_t window) const { return hasState(window, "_NET_WM_STATE_SKIP_PAGER"); }

QImage Screen::picture(xcb_window_t window) const {
  const auto geometry = answer(xcb_get_geometry_reply, connection, xcb_get_geometry(connection, window));
  if (!geometry) return {};
  const auto image = answer(xcb_get_image_reply, connection,
                            xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0,
                                          geometry->width, geometry->height, ~0U));
  if (!image) return {};
  return QImage(xcb_get_image_data(image.get()), geometry->width, geometry->height,
                qsizetype{4} * geometry->width, QImage::Format_RGB32)
      .copy();
}

void Screen::click(xcb_window_t window) const {
  const auto geometry = answer(xcb_get_geometry_reply, connection, xcb_get_geometry(connection, window));
  if (!geometry) throw std::runtime_error("the window to click is gone");
  xcb_warp_pointer(connection, XCB_NONE, window, 0, 0, 0, 0, static_cast<std::int16_t>(geometry->width / 2),
                   static_cast<std::int16_t>(geometry->height / 2));
  fake(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1);
  fake(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1);
}

void Screen::press(const std::vector<xcb_keysym_t>& keys) const {
  for (const xcb_keysym_t key : keys) fake(XCB_KEY_PRESS, keyCode(key));
  for (auto key = keys.rbegin(); key != keys.rend(); ++key) fake(XCB_KEY_RELEASE, keyCode(*key));
}

xcb_atom_t Screen::atom(const std::string& name) const {
  const auto reply =
      answer(xcb_intern_atom_reply, connection,
             xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str()));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::string Screen::bytes(xcb_window_t window, const std::string& property) const {
  const auto reply =
      answer(xcb_get_property_reply, connection,
             xcb_get_property(connection, 0, window, atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, 1024));
  if (!reply) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

bool Screen::hasState(xcb_window_t window, const std::string& state) const {
  const std::string states = bytes(window, "_NET_WM_STATE");
  const xcb_atom_t wanted = atom(state);
  for (std::size_t i = 0; i + sizeof wanted <= states.size(); i += sizeof wanted) {
    if (std::memcmp(states.data() + i, &wanted, sizeof wanted) == 0) return true;
  }
  return false;
}

std::vector<xcb_window_t> Screen::allWindows() const {
  std::vector<xcb_window_t> all{root};
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (const xcb_window_t child : children(all[i])) all.push_back(child);
  }
  return all;
}

std::vector<xcb_window_t> Screen::children(xcb_window_t window) const {
  const auto reply = answer(xcb_query_tree_reply, connection, xcb_query_tree(connection, window));
  if (!reply) return {};
  const xcb_window_t* first = xcb_query_tree_children(reply.get());
  return {first, first + xcb_query_tree_children_length(reply.get())};
}

xcb_keycode_t Screen::keyCode(xcb_keysym_t keysym) const {
  const xcb_setup_t* setup = xcb_get_setup(connection);
  const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
  const auto reply = answer(xcb_get_keyboard_mapping_reply, connection,
                            xcb_get_keyboard_mapping(connection, setup->min_keycode, count));
  if (!reply) return 0;
  const xcb_keysym_t* keysyms = xcb_get_keyboard_mapping_keysyms(reply.get());
  for (int i = 0; i < xcb_get_keyboard_mapping_keysyms_length(reply.get()); ++i) {
    if (keysyms[i] != keysym) continue;
    return static_cast<xcb_keycode_t>(setup->min_keycode + i / reply->keysyms_per_keycode);
  }
  throw std::runtime_error("the keyboard lacks a key");
}

void Screen::fake(std::uint8_t type, std::uint8_t detail) const {
  xcb_test_fake_input(connection, type, detail, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
  // Done once the server has answered a later request.
  answer(xcb_get_input_focus_reply, connection, xcb_get_input_focus(connection));
}

}  // namespace vantorel::test
