#include <gmock/gmock.h>

#include <csignal>
#include <memory>
#include <thread>

#include "MessageBus.h"
#include "Roles.h"

namespace vantorel::test {
namespace {

using testing::HasSubstr;

using Environment = std::vector<std::string>;

const Environment noSessionBus{"DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR"};

/// A program under remote control; it has said what came of its start.
std::unique_ptr<Process> start(const Environment& environment, const std::string& kind = "windowed") {
  auto program = std::make_unique<Process>(thisProgram(), Environment{role::serveRemote, kind}, environment);
  EXPECT_TRUE(waitUntil([&] { return program->output().find('\n') != std::string::npos; }))
      << program->errorOutput();
  return program;
}

/// The answer to `command`, as another start of the program gets it.
std::string send(const Environment& environment, const std::string& command,
                 const std::string& sendingRole = role::sendRemote) {
  Process sender(thisProgram(), {sendingRole, command}, environment);
  EXPECT_EQ(sender.waitForExit(), 0) << sender.errorOutput();
  return sender.output();
}

class RemoteControlTest : public testing::Test {
 protected:
  MessageBus bus;
  const Environment session{bus.environment()};
};

TEST_F(RemoteControlTest, TheRunningProgramDoesWhatItIsAskedFor) {
  const auto program = start(session);
  EXPECT_EQ(send(session, "toggle"), "done");
  EXPECT_EQ(program->output(), "reachable\ntoggled\n");
  EXPECT_EQ(send(session, "show"), "done");
  EXPECT_EQ(program->output(), "reachable\ntoggled\nshown\n");
}

TEST_F(RemoteControlTest, MadeOnAThreadItIsServedOnTheOneThatIsItsHome) {
  const auto program = start(session, "from-a-thread");
  EXPECT_EQ(send(session, "toggle"), "done");
  EXPECT_EQ(program->output(), "reachable\ntoggled\n");
  program->signal(SIGTERM);
  EXPECT_EQ(program->waitForExit(), 0);
}

TEST_F(RemoteControlTest, WhoAsksToQuitIsAnsweredBeforeTheProgramEnds) {
  const auto program = start(session);
  EXPECT_EQ(send(session, "quit"), "done");
  EXPECT_EQ(program->waitForExit(), 7);
}

TEST_F(RemoteControlTest, AProgramWithoutAWindowSaysSo) {
  const auto program = start(session, "headless");
  EXPECT_EQ(send(session, "show"), "refused: The running program has no window.");
  EXPECT_EQ(send(session, "toggle"), "done");
}

TEST_F(RemoteControlTest, TellsWhetherItHasAWindow) {
  const auto hasWindow = [&] {
    Process question(
        "dbus-send",
        {"--session", "--print-reply", "--dest=org.vantorel.Vantorel", "/org/vantorel/Vantorel",
         "org.freedesktop.DBus.Properties.Get", "string:org.vantorel.RemoteControl", "string:HasWindow"},
        session);
    EXPECT_EQ(question.waitForExit(), 0) << question.errorOutput();
    return question.output();
  };
  {
    const auto program = start(session);
    EXPECT_THAT(hasWindow(), HasSubstr("boolean true"));
  }
  const auto program = start(session, "headless");
  EXPECT_THAT(hasWindow(), HasSubstr("boolean false"));
}

TEST_F(RemoteControlTest, ACommandWithoutARunningProgramSaysSo) {
  EXPECT_EQ(send(session, "toggle"), "no running program");
}

TEST_F(RemoteControlTest, ASecondStartLearnsThatAnotherIsRunning) {
  const auto first = start(session);
  const auto second = start(session);
  EXPECT_EQ(second->output(), "another is running\n");
  EXPECT_EQ(send(session, "toggle"), "done");
  EXPECT_EQ(first->output(), "reachable\ntoggled\n");
}

TEST_F(RemoteControlTest, OfStartsAtTheSameTimeOneWins) {
  for (int round = 0; round < 5; ++round) {
    std::vector<std::unique_ptr<Process>> programs;
    for (int i = 0; i < 4; ++i) {
      programs.push_back(std::make_unique<Process>(thisProgram(), Environment{role::serveRemote}, session));
    }
    int winners = 0;
    for (const auto& program : programs) {
      ASSERT_TRUE(waitUntil([&] { return !program->output().empty(); }));
      winners += program->output() == "reachable\n" ? 1 : 0;
    }
    EXPECT_EQ(winners, 1);
  }
}

TEST_F(RemoteControlTest, TheDeathOfTheProgramMakesRoomForAnother) {
  const auto first = start(session);
  first->signal(SIGKILL);
  ASSERT_TRUE(first->waitForExit());
  ASSERT_TRUE(waitUntil([&] { return send(session, "toggle") == "no running program"; }));
  EXPECT_EQ(start(session)->output(), "reachable\n");
}

TEST_F(RemoteControlTest, AProgramThatHangsIsReported) {
  const auto program = start(session);
  program->signal(SIGSTOP);
  EXPECT_EQ(send(session, "toggle", role::sendRemoteInHaste),
            "refused: The running program does not answer.");
  program->signal(SIGCONT);
}

TEST_F(RemoteControlTest, TheEndOfTheBusDoesNotEndTheProgram) {
  auto ending = std::make_unique<MessageBus>();
  const auto program = start({ending->environment()});
  ending.reset();
  std::this_thread::sleep_for(std::chrono::milliseconds(100));  // to take notice
  EXPECT_TRUE(program->isRunning());
  program->signal(SIGTERM);
  EXPECT_EQ(program->waitForExit(), 0);
}

TEST(RemoteControlWithoutBusTest, TheProgramRuns) {
  const auto program = start(noSessionBus);
  EXPECT_EQ(program->output(), "no session bus\n");
  program->signal(SIGTERM);
  EXPECT_EQ(program->waitForExit(), 0);
}

TEST(RemoteControlWithoutBusTest, CommandsSaySo) {
  EXPECT_EQ(send(noSessionBus, "toggle"), "no session bus");
  EXPECT_EQ(send({"DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent/bus"}, "toggle"), "no session bus");
}

TEST(RemoteControlWithoutBusTest, TheBusOfTheRuntimeDirectoryIsFoundWithoutItsAddress) {
  const MessageBus bus;
  const std::string socket = bus.address().substr(std::string("unix:path=").size());
  const std::string directory = socket.substr(0, socket.rfind('/'));
  EXPECT_EQ(send({"DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR=" + directory}, "toggle"),
            "no running program");
}

}  // namespace
}  // namespace vantorel::test
