#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "TrayTest.h"

namespace vantorel::test {
namespace {

class WorkspaceTest : public TrayTest {
 protected:
  /// The desktop's opener, which writes down what it was asked to open.
  std::string pathWithOpener() {
    const std::filesystem::path opener = programs.path() / "xdg-open";
    std::ofstream(opener) << "#!/bin/sh\nprintf '%s\\n' \"$1\" >>" << (programs.path() / "opened").string()
                          << "\n";
    chmod(opener.c_str(), 0755);
    return "PATH=" + programs.path().string() + ":" + std::getenv("PATH");
  }

  std::string opened() const {
    std::ostringstream text;
    text << std::ifstream(programs.path() / "opened").rdbuf();
    return text.str();
  }

  TemporaryDirectory programs;
};

TEST_F(WorkspaceTest, OpensAWebAddressWithTheDesktopsProgram) {
  startProgram({pathWithOpener()});
  tell("open https://example.org/drivers");
  EXPECT_TRUE(eventually([&] { return opened() == "https://example.org/drivers\n"; }));
  EXPECT_EQ(program->errorOutput(), "");
}

TEST_F(WorkspaceTest, LeadsAddressesOfTheSystemSettingsToTheProgramsOwnPage) {
  startProgram({pathWithOpener()});
  tell("open x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility");
  EXPECT_TRUE(hasSaid("settings opened"));
  EXPECT_EQ(opened(), "");
}

TEST_F(WorkspaceTest, TellsInOneLineWhatItCannotOpen) {
  startProgram({pathWithOpener()});
  tell("open file:///etc/passwd");
  EXPECT_TRUE(hasSaid("cannot open file:///etc/passwd"));
  EXPECT_EQ(program->errorOutput(), "vantorel: cannot open file:///etc/passwd\n");
  EXPECT_EQ(opened(), "");
}

}  // namespace
}  // namespace vantorel::test
