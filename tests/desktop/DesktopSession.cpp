#include "DesktopSession.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <stdexcept>

namespace vantorel::test {
namespace {

FileDescriptor openPipe(const std::filesystem::path& path) {
  if (mkfifo(path.c_str(), 0600) != 0) throw std::runtime_error("cannot make the pipe of the pads");
  return FileDescriptor(open(path.c_str(), O_RDWR | O_CLOEXEC));
}

}  // namespace

DesktopSession::DesktopSession(const std::vector<std::string>& serverArguments,
                               const std::vector<std::string>& services)
    : server_(serverArguments),
      windowManager_(server_),
      bus_(services, {server_.environment()}),
      pipe_(openPipe(directory_.path() / "pads")) {
  std::filesystem::create_directories(directory_.path() / "runtime");
  std::filesystem::permissions(directory_.path() / "runtime", std::filesystem::perms::owner_all);
}

std::vector<std::string> DesktopSession::environment() const {
  const std::string home = directory_.path().string();
  return {server_.environment(),
          bus_.environment(),
          "HOME=" + home,
          "XDG_CONFIG_HOME=" + settings().string(),
          "XDG_RUNTIME_DIR=" + home + "/runtime",
          "VANTOREL_VIRTUAL_PADS=" + home + "/pads",
          "QT_QPA_PLATFORM=xcb",
          "LANG=C.UTF-8",
          "TZ=UTC",
          "WAYLAND_DISPLAY"};
}

void DesktopSession::pads(const std::string& line) const {
  const std::string text = line + "\n";
  if (write(pipe_.number(), text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
    throw std::runtime_error("cannot write to the pads");
  }
}

}  // namespace vantorel::test
