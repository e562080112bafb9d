#include "ContentView.h"

#include <QHBoxLayout>
#include <QPalette>
#include <QVBoxLayout>

#include "AppTheme.h"
#include "ConnectionPanel.h"
#include "ControllerDetailsPanel.h"
#include "DebugLogPanel.h"
#include "DotGrid.h"
#include "HeaderPanel.h"
#include "JoystickPanel.h"
#include "MappingSwitchPanel.h"
#include "MenuBarPanel.h"
#include "PermissionPanel.h"
#include "SupportedControllersPanel.h"
#include "Typography.h"

namespace vantorel {

namespace {

constexpr QSize leastSize(1000, 800);
constexpr int pagePadding = 12;
constexpr int spacing = 8;  // between the plates, measured without their shadows
constexpr int headerShadow = 8;
constexpr int panelShadow = 4;

/// The layout of a plain widget would find its hint by laying all of it out, at a width that it never has.
class Page : public QWidget {
 public:
  QSize sizeHint() const override { return ContentView::idealSize; }
};

}  // namespace

ContentView::ContentView(WindowState& windowState, QWidget* parent)
    : QWidget(parent),
      state(windowState),
      background(new DotGridBackground(this)),
      scroll(new RetroScrollArea(this)) {
  setFont(monospaced());
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, AppTheme::text());
  setPalette(colors);
  setMinimumSize(leastSize);
  resize(idealSize);
  scroll->resize(idealSize);
  scroll->setContent(makePage());
  scroll->setFocusPolicy(Qt::ClickFocus);  // its keys scroll while no control has the keyboard
  setFocusProxy(scroll);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(scroll);
}

QWidget* ContentView::makePage() {
  auto* page = new Page;
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(pagePadding, pagePadding, pagePadding - headerShadow, pagePadding);
  column->setSpacing(0);
  column->addWidget(new HeaderPanel(state, page));
  column->addSpacing(spacing);
  column->addLayout(makeRows(page));
  column->addStretch(1);  // takes all that the window is higher than its page
  return page;
}

/// What stands below the header. Its plates end where the header's does; only the shadows differ in width.
QLayout* ContentView::makeRows(QWidget* page) {
  auto* rows = new QVBoxLayout;
  rows->setContentsMargins(0, 0, headerShadow - panelShadow, 0);
  rows->setSpacing(spacing);
  rows->addLayout(makePanelRow(page));
  auto* list = new MappingList(state, page);
  auto* listPlace = new QVBoxLayout;
  listPlace->setContentsMargins(0, 0, panelShadow, panelShadow);
  listPlace->addWidget(list);
  rows->addLayout(listPlace);
  rows->addWidget(new DebugLogPanel(state, page));
  return rows;
}

QLayout* ContentView::makePanelRow(QWidget* page) {
  row = {new ConnectionPanel(state, page),
         new PermissionPanel(state, page),
         new MappingSwitchPanel(state, page),
         new JoystickPanel(state, page),
         new MenuBarPanel(state, page),
         new ControllerDetailsPanel(state, page),
         new SupportedControllersPanel(state, page)};
  auto* layout = new QHBoxLayout;
  layout->setSpacing(spacing - panelShadow);
  for (Panel* const panel : row) layout->addWidget(panel, 1);
  return layout;
}

void ContentView::resizeEvent(QResizeEvent* /*event*/) { background->setGeometry(rect()); }

}  // namespace vantorel
