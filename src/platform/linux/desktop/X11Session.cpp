#include "X11Session.h"

#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <memory>

namespace vantorel {
namespace {

struct Freeing {
  void operator()(void* reply) const {
    std::free(reply);
  }  // NOLINT(cppcoreguidelines-no-malloc): as XCB asks for
};

template <class Reply>
std::unique_ptr<Reply, Freeing> owned(Reply* reply) {
  return std::unique_ptr<Reply, Freeing>(reply);
}

constexpr std::uint32_t longestProperty = 1024;  // in 32-bit values

int defaultScreen() {
  char* host = nullptr;
  int display = 0;
  int screen = 0;
  if (xcb_parse_display(nullptr, &host, &display, &screen) == 0) return 0;
  owned(host);
  return screen;
}

}  // namespace

std::optional<X11Session> X11Session::current() {
  if (qGuiApp == nullptr || QGuiApplication::platformName() != QLatin1String("xcb")) return std::nullopt;
  const auto* application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (application == nullptr || application->connection() == nullptr) return std::nullopt;
  return X11Session(application->connection(), defaultScreen());
}

xcb_window_t X11Session::root() const {
  auto roots = xcb_setup_roots_iterator(xcb_get_setup(server));
  for (int i = 0; i < screen && roots.rem > 1; ++i) xcb_screen_next(&roots);
  return roots.data->root;
}

xcb_atom_t X11Session::atom(const std::string& name) const {
  const auto cookie = xcb_intern_atom(server, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
  const auto reply = owned(xcb_intern_atom_reply(server, cookie, nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::vector<std::uint32_t> X11Session::property(xcb_window_t window, xcb_atom_t name) const {
  const auto cookie =
      xcb_get_property(server, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, longestProperty);
  xcb_generic_error_t* error = nullptr;
  const auto reply = owned(xcb_get_property_reply(server, cookie, &error));
  owned(error);
  if (!reply || reply->format != 32) return {};
  const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {first, first + reply->value_len};
}

void X11Session::setProperty(xcb_window_t window, xcb_atom_t name, xcb_atom_t type,
                             const std::vector<std::uint32_t>& values) const {
  if (values.empty()) {
    xcb_delete_property(server, window, name);
  } else {
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, window, name, type, 32,
                        static_cast<std::uint32_t>(values.size()), values.data());
  }
  xcb_flush(server);
}

xcb_window_t X11Session::selectionOwner(xcb_atom_t selection) const {
  const auto reply =
      owned(xcb_get_selection_owner_reply(server, xcb_get_selection_owner(server, selection), nullptr));
  return reply ? reply->owner : xcb_window_t{XCB_NONE};
}

void X11Session::send(xcb_window_t receiver, std::uint32_t eventMask, xcb_window_t window, xcb_atom_t type,
                      const std::vector<std::uint32_t>& values) const {
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = window;
  message.type = type;
  std::copy_n(values.begin(), std::min<std::size_t>(values.size(), 5), message.data.data32);
  xcb_send_event(server, 0, receiver, eventMask, reinterpret_cast<const char*>(&message));
  xcb_flush(server);
}

}  // namespace vantorel
