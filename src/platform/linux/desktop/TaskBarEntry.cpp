#include "TaskBarEntry.h"

#include <algorithm>
#include <vector>

#include "X11Session.h"

namespace vantorel {
namespace {

constexpr std::uint32_t removeState = 0;
constexpr std::uint32_t addState = 1;
constexpr std::uint32_t fromAnApplication = 1;

}  // namespace

void TaskBarEntry::setListed(bool isListed) const {
  const auto session = X11Session::current();
  if (!session || window.handle() == nullptr) return;
  session->send(session->root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                static_cast<xcb_window_t>(window.winId()), session->atom("_NET_WM_STATE"),
                {isListed ? removeState : addState, session->atom("_NET_WM_STATE_SKIP_TASKBAR"),
                 session->atom("_NET_WM_STATE_SKIP_PAGER"), fromAnApplication, 0});
}

void TaskBarEntry::setListedWhenShown(bool isListed) const {
  const auto session = X11Session::current();
  if (!session || window.handle() == nullptr) return;
  const auto id = static_cast<xcb_window_t>(window.winId());
  const xcb_atom_t property = session->atom("_NET_WM_STATE");
  std::vector<std::uint32_t> states = session->property(id, property);
  for (const char* name : {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"}) {
    const xcb_atom_t state = session->atom(name);
    states.erase(std::remove(states.begin(), states.end(), state), states.end());
    if (!isListed) states.push_back(state);
  }
  session->setProperty(id, property, XCB_ATOM_ATOM, states);
}

}  // namespace vantorel
