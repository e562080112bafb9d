#include "TrayTest.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTest>
#include <algorithm>
#include <filesystem>
#include <sstream>

namespace vantorel::test {
namespace {

std::size_t countOfLines(const std::string& text, const std::string& start) {
  std::istringstream lines(text);
  std::size_t count = 0;
  for (std::string line; std::getline(lines, line);) count += line.rfind(start, 0) == 0 ? 1 : 0;
  return count;
}

}  // namespace

TrayTest::TrayTest() {
  std::filesystem::permissions(directory.path(), std::filesystem::perms::owner_all);
  const std::string pipe = directory.path() / "commands";
  if (mkfifo(pipe.c_str(), 0600) == 0) commands = open(pipe.c_str(), O_RDWR | O_CLOEXEC);
  if (commands < 0) throw std::runtime_error("no pipe for the commands");
}

TrayTest::~TrayTest() { close(commands); }

void TrayTest::TearDown() {
  if (!program) return;
  if (program->isRunning()) {
    const std::string line = "terminate\n";
    EXPECT_EQ(write(commands, line.data(), line.size()), static_cast<ssize_t>(line.size()));
  }
  // The event loop turns: the program may say farewell to the host in this process.
  EXPECT_TRUE(eventually([&] { return !program->isRunning(); }));
  EXPECT_EQ(program->waitForExit(), 0);
  if (HasFailure()) {
    std::cerr << "The program wrote:\n" << program->output() << program->errorOutput() << std::endl;
  }
}

void TrayTest::startProgram(std::vector<std::string> environment) {
  // Of two values of a variable the first one counts.
  environment.insert(environment.end(),
                     {server.environment(), bus.environment(), "QT_QPA_PLATFORM=xcb",
                      "TRAY_PROGRAM_COMMANDS=" + (directory.path() / "commands").string(),
                      "HOME=" + directory.path().string(), "XDG_RUNTIME_DIR=" + directory.path().string(),
                      "QT_ACCESSIBILITY=0", "NO_AT_BRIDGE=1", "QT_QPA_PLATFORMTHEME", "XDG_CURRENT_DESKTOP"});
  const std::string self = std::filesystem::read_symlink("/proc/self/exe");
  program = std::make_unique<Process>(self, std::vector<std::string>{"--program"}, environment);
  ASSERT_TRUE(eventuallySays("ready"));
}

void TrayTest::tell(const std::string& command) {
  const std::string line = command + "\n";
  ASSERT_EQ(write(commands, line.data(), line.size()), static_cast<ssize_t>(line.size()));
  ++commandCount;
  ASSERT_TRUE(eventually([&] { return countOfLines(program->output(), "did ") == commandCount; })) << command;
}

bool TrayTest::eventually(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, static_cast<int>(generousDeadline.count()));
}

bool TrayTest::hasSaid(const std::string& line) const { return countOfLines(program->output(), line) > 0; }

bool TrayTest::eventuallySays(const std::string& line) const {
  return eventually([&] { return hasSaid(line); });
}

bool TrayTest::barIsThere() const {
  const std::string output = program->output();
  const std::size_t there = output.rfind("a bar is there\n");
  return there != std::string::npos && there > output.rfind("no bar is there\n");
}

void TrayTest::startHost(StatusNotifierHost::Hosting hosting) {
  host = std::make_unique<StatusNotifierHost>(bus.address(), hosting);
}

void TrayTest::startTray() {
  tray = std::make_unique<Process>(
      "trayer",
      std::vector<std::string>{"--edge", "bottom", "--align", "right", "--SetDockType", "true", "--expand",
                               "true", "--width", "10", "--height", "24"},
      std::vector<std::string>{server.environment(), bus.environment()});
}

}  // namespace vantorel::test
