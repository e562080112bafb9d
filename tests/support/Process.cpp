#include "Process.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

namespace vantorel::test {
namespace {

void require(int error, const char* what) {
  if (error != 0) throw std::system_error(error, std::generic_category(), what);
}

/// A file without a name: unlike a pipe it never makes the writer wait.
FileDescriptor makeMemoryFile(const char* name) {
  FileDescriptor file(memfd_create(name, MFD_CLOEXEC));
  require(file.number() < 0 ? errno : 0, "memfd_create");
  return file;
}

std::string contents(const FileDescriptor& file) {
  std::string text;
  std::array<char, 4096> block{};
  for (;;) {
    const ssize_t count = pread(file.number(), block.data(), block.size(), static_cast<off_t>(text.size()));
    if (count <= 0) return text;
    text.append(block.data(), static_cast<std::size_t>(count));
  }
}

std::string nameOf(const std::string& variable) { return variable.substr(0, variable.find('=')); }

std::vector<std::string> environmentWith(const std::vector<std::string>& changes) {
  std::vector<std::string> result;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    const bool isChanged = std::any_of(changes.begin(), changes.end(), [&](const std::string& change) {
      return nameOf(change) == nameOf(*variable);
    });
    if (!isChanged) result.emplace_back(*variable);
  }
  for (const std::string& change : changes) {
    if (change.find('=') != std::string::npos) result.push_back(change);
  }
  return result;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

/// What the new process does before it becomes the program.
class Preparation {
 public:
  Preparation(const FileDescriptor& output, const FileDescriptor& errorOutput) {
    require(posix_spawn_file_actions_init(&actions), "posix_spawn_file_actions_init");
    require(posix_spawnattr_init(&attributes), "posix_spawnattr_init");
    require(posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0), "addopen");
    require(posix_spawn_file_actions_adddup2(&actions, output.number(), STDOUT_FILENO), "adddup2");
    require(posix_spawn_file_actions_adddup2(&actions, errorOutput.number(), STDERR_FILENO), "adddup2");
    sigset_t none{};
    sigset_t all{};
    sigemptyset(&none);
    sigfillset(&all);
    require(posix_spawnattr_setsigmask(&attributes, &none), "setsigmask");
    require(posix_spawnattr_setsigdefault(&attributes, &all), "setsigdefault");
    require(posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF),
            "setflags");
  }
  Preparation(const Preparation&) = delete;
  Preparation& operator=(const Preparation&) = delete;
  ~Preparation() {
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
  }

  posix_spawn_file_actions_t actions{};
  posix_spawnattr_t attributes{};
};

}  // namespace

Process::Process(const std::string& program, const std::vector<std::string>& arguments,
                 const std::vector<std::string>& environment)
    : output_(makeMemoryFile("output")), errorOutput_(makeMemoryFile("errors")) {
  // setpriv asks the kernel to end the program with its parent, then becomes the program.
  std::vector<std::string> command{"setpriv", "--pdeathsig", "KILL", program};
  command.insert(command.end(), arguments.begin(), arguments.end());
  std::vector<std::string> variables = environmentWith(environment);
  const Preparation preparation(output_, errorOutput_);
  require(posix_spawnp(&pid_, command.front().c_str(), &preparation.actions, &preparation.attributes,
                       pointersTo(command).data(), pointersTo(variables).data()),
          "posix_spawnp setpriv");
}

Process::~Process() {
  signal(SIGTERM);
  if (waitForExit(std::chrono::seconds(10))) return;
  signal(SIGKILL);
  waitForExit();
}

std::string Process::output() const { return contents(output_); }

std::string Process::errorOutput() const { return contents(errorOutput_); }

void Process::signal(int number) {
  if (isRunning()) kill(pid_, number);
}

bool Process::isRunning() {
  if (exitStatus_) return false;
  int status = 0;
  if (waitpid(pid_, &status, WNOHANG) != pid_) return true;
  exitStatus_ = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
  return false;
}

std::optional<int> Process::waitForExit(std::chrono::milliseconds deadline) {
  waitUntil([this] { return !isRunning(); }, deadline);
  return exitStatus_;
}

}  // namespace vantorel::test
