#include "TrayProgram.h"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QPalette>
#include <QSocketNotifier>
#include <QWidget>
#include <array>
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>
#include <string>

#include "DesktopWorkspace.h"
#include "QtApplication.h"
#include "QtMainQueue.h"
#include "QtStatusBar.h"

namespace vantorel::test {
namespace {

void say(const std::string& line) { std::cout << line << std::endl; }

MenuItem entry(const std::string& title, const std::string& key) {
  return {title, true, key, [title] { say("chosen " + title); }};
}

Menu mappingMenu(bool isOn) {
  return {{isOn ? "✓ Mapping Active" : "✗ Mapping Inactive", false, "", nullptr},
          {},
          entry(isOn ? "Disable Mapping" : "Enable Mapping", "t"),
          {},
          entry("Show Window", "s"),
          {},
          entry("Quit", "q")};
}

class TrayProgram {
 public:
  TrayProgram() {
    presence = bar.isPresent().observe([this] { tellPresence(); });
    tellPresence();
  }

  void run(const std::string& line) {
    const std::size_t blank = line.find(' ');
    const std::string command = line.substr(0, blank);
    const std::string argument = blank == std::string::npos ? "" : line.substr(blank + 1);
    commands.at(command)(argument);
    say("did " + line);
  }

 private:
  void tellPresence() { say(bar.isPresent() ? "a bar is there" : "no bar is there"); }

  void makeItem() {
    item = bar.makeStatusItem();
    item->setTemplateIcon("gamecontroller.fill", "Vantorel");
    item->setMenu(mappingMenu(false));
  }

  QWidget& window(const std::string& title) {
    auto& found = windows[title];
    if (!found) {
      found = std::make_unique<QWidget>();
      found->setWindowTitle(QString::fromStdString(title));
      found->resize(300, 200);
    }
    return *found;
  }

  QtMainQueue queue;
  QtStatusBar bar{queue};
  QtApplication application{bar};
  DesktopWorkspace workspace{
      {[] { say("settings opened"); }, [](const std::string& address) { say("cannot open " + address); }}};
  std::unique_ptr<StatusItem> item;
  std::map<std::string, std::unique_ptr<QWidget>> windows;
  Subscription presence;

  const std::map<std::string, std::function<void(const std::string&)>> commands{
      {"item", [this](const std::string&) { makeItem(); }},
      {"menu", [this](const std::string& state) { item->setMenu(mappingMenu(state == "on")); }},
      {"drop", [this](const std::string&) { item.reset(); }},
      {"policy",
       [this](const std::string& name) {
         application.setActivationPolicy(name == "accessory" ? ActivationPolicy::accessory
                                                             : ActivationPolicy::regular);
       }},
      {"show", [this](const std::string& title) { window(title).show(); }},
      {"hide", [this](const std::string& title) { window(title).hide(); }},
      {"palette",
       [](const std::string& name) {
         QApplication::setPalette(QPalette(name == "dark" ? Qt::black : Qt::white));
       }},
      {"open", [this](const std::string& address) { workspace.open(address); }},
      {"terminate", [this](const std::string&) { application.terminate(); }},
  };
};

}  // namespace

int runTrayProgram(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setApplicationName(QStringLiteral("Vantorel"));
  TrayProgram program;

  const int pipe = open(std::getenv("TRAY_PROGRAM_COMMANDS"), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  QSocketNotifier readable(pipe, QSocketNotifier::Read);
  std::string pending;
  QObject::connect(&readable, &QSocketNotifier::activated, &application, [&] {
    std::array<char, 512> block{};
    const ssize_t count = read(pipe, block.data(), block.size());
    if (count > 0) pending.append(block.data(), static_cast<std::size_t>(count));
    for (std::size_t end = pending.find('\n'); end != std::string::npos; end = pending.find('\n')) {
      const std::string line = pending.substr(0, end);
      pending.erase(0, end + 1);
      program.run(line);
    }
  });
  say("ready");
  const int status = QApplication::exec();
  close(pipe);
  return status;
}

}  // namespace vantorel::test
