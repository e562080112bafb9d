#include "XServer.h"

#include <stdexcept>

namespace vantorel::test {
namespace {

/// The server chooses a free display and writes its number to the file 1 when it is ready.
std::vector<std::string> serverArguments(const std::vector<std::string>& added) {
  std::vector<std::string> arguments{"-displayfd",  "1",         "-screen", "0",
                                     "1280x900x24", "-nolisten", "tcp",     "-noreset"};
  arguments.insert(arguments.end(), added.begin(), added.end());
  return arguments;
}

}  // namespace

XServer::XServer(const std::vector<std::string>& arguments) : process_("Xvfb", serverArguments(arguments)) {
  const auto isReady = [this] { return process_.output().find('\n') != std::string::npos; };
  waitUntil([&] { return isReady() || !process_.isRunning(); });
  if (!isReady()) throw std::runtime_error("Xvfb did not start: " + process_.errorOutput());
  const std::string output = process_.output();
  display_ = ":" + output.substr(0, output.find('\n'));
}

}  // namespace vantorel::test
