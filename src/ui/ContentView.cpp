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
#include "KeyPickerSheet.h"
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
  scroll->setContent(makePage());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(scroll);
  new KeyPickerSheet(state, this);
}

/// The plates of all rows end at the same line; their shadows differ in width, so the margins do.
QWidget* ContentView::makePage() {
  auto* page = new QWidget;
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(pagePadding, pagePadding, pagePadding - panelShadow, pagePadding);
  column->setSpacing(0);
  auto* header = new HeaderPanel(state, page);
  column->addWidget(header);
  column->addSpacing(spacing);
  column->addLayout(makePanelRow(page));
  column->addSpacing(spacing);
  auto* list = new MappingList(state, page);
  list->setContentsMargins(0, 0, panelShadow, 0);
  column->addWidget(list);
  column->addSpacing(spacing + panelShadow);
  column->addWidget(new DebugLogPanel(state, page));
  column->addStretch();
  return page;
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
