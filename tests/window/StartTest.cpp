// The program from its start to its end.

#include <linux/input-event-codes.h>

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <csignal>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "FirstDrawing.h"
#include "WindowTest.h"
#include "XClient.h"

namespace vantorel::test {
namespace {

using testing::HasSubstr;

using Start = WindowTest;

constexpr std::uint8_t xKey(int linuxKeyCode) { return static_cast<std::uint8_t>(linuxKeyCode + 8); }

TEST_F(Start, OpensAWindowOfAtLeast1100By800) {
  start();
  const auto size = windows.size(window());
  EXPECT_GE(size.width, 1100);
  EXPECT_GE(size.height, 800);
  EXPECT_EQ(program->errorOutput(), "");
}

/// Starts the program, again if the machine was too busy to look on.
class FirstPicture : public WindowTest {
 protected:
  QImage take() {
    while (true) {
      try {
        const FirstDrawing drawing(session.server().display());
        launch();
        return screen.picture(drawing.wait());
      } catch (const WatchedTooLate&) {
        program->signal(SIGKILL);
        program->waitForExit();
      }
    }
  }
};

TEST_F(FirstPicture, ShowsTheStateOfTheMachineAlready) {
  const QImage first = take();
  waitForWindow();
  readScreen({"see label: GRANTED", "miss push button: FIX"});
  ASSERT_FALSE(first.isNull());
  EXPECT_EQ(screen.picture(window()), first);
}

/// A program that has the name of the running one, and ends when it is asked to show its window.
class EndingProgram : public QDBusVirtualObject {
 public:
  explicit EndingProgram(const std::string& address)
      : bus(QDBusConnection::connectToBus(QString::fromStdString(address), "ending program")) {
    bus.registerVirtualObject("/org/vantorel/Vantorel", this);
    if (!bus.registerService(name)) throw std::runtime_error("the name is taken");
  }
  EndingProgram(const EndingProgram&) = delete;
  EndingProgram& operator=(const EndingProgram&) = delete;
  ~EndingProgram() override { QDBusConnection::disconnectFromBus("ending program"); }

  QString introspect(const QString& /*path*/) const override { return {}; }

  bool handleMessage(const QDBusMessage& message, const QDBusConnection& /*connection*/) override {
    isAsked = true;
    bus.unregisterService(name);
    return bus.send(message.createErrorReply(QDBusError::ServiceUnknown, "gone"));
  }

  bool isAsked = false;

 private:
  const QString name = "org.vantorel.Vantorel";
  QDBusConnection bus;
};

TEST_F(Start, TakesThePlaceOfAProgramThatEndsAtThatMoment) {
  EndingProgram former(session.bus().address());
  start();
  EXPECT_TRUE(former.isAsked);
  EXPECT_EQ(startAgain({"--toggle"}), 0);
  EXPECT_TRUE(eventuallySays(mappingOn));
}

class SmallScreen : public WindowTest {
 protected:
  SmallScreen() : WindowTest({"-screen", "0", "1024x700x24"}) {}
};

TEST_F(SmallScreen, HoldsTheWholeWindow) {
  start();
  EXPECT_LE(windows.size(window()).height, 700);
  EXPECT_LE(windows.size(window()).width, 1024);
}

TEST_F(Start, TheHotKeyFlipsTheMappingWhileAnotherWindowHasTheKeyboard) {
  start();
  XClient client(session.server());
  const auto pressHotKey = [&] { client.type(xKey(KEY_M), {xKey(KEY_LEFTMETA), xKey(KEY_LEFTSHIFT)}); };
  pressHotKey();
  EXPECT_TRUE(eventuallySays(mappingOn));
  pressHotKey();
  EXPECT_TRUE(eventuallySays(mappingOff));
}

TEST_F(Start, ControlQEndsTheProgram) {
  start();
  screen.press({XK_Control_L, XK_q});
  ASSERT_TRUE(eventually([&] { return !program->isRunning(); }));
  EXPECT_EQ(program->waitForExit(), 0);
}

TEST_F(Start, ControlNOpensAnotherWindowAndControlWClosesOne) {
  start();
  screen.press({XK_Control_L, XK_n});
  ASSERT_TRUE(eventually([&] {
    return windowCount() == 2 && windows.active() == windows.highest() &&
           windows.highest() == windows.titled("Vantorel").back();
  }));
  screen.press({XK_Control_L, XK_w});
  ASSERT_TRUE(eventually([&] { return isInFront(); }));
  screen.press({XK_Control_L, XK_w});
  ASSERT_TRUE(eventually([&] { return windowCount() == 0; }));
  EXPECT_EQ(startAgain(), 0);
  EXPECT_TRUE(eventually([&] { return isInFront(); }));
}

TEST_F(Start, ClosingTheWindowEndsNothing) {
  start();
  closeWindow();
  EXPECT_EQ(startAgain({"--toggle"}), 0);
  EXPECT_TRUE(eventuallySays(mappingOn));
  EXPECT_EQ(windowCount(), 0U);
}

TEST_F(Start, SigtermEndsTheProgramInGoodOrder) {
  start();
  program->signal(SIGTERM);
  EXPECT_EQ(program->waitForExit(), 0);
}

TEST_F(Start, DamagedSettingsAreKeptAndTheProgramBeginsWithTheDefaults) {
  const std::string damage = "{\"data\": {\"gamepad_keyboard_mappings\": ";
  const auto file = session.settings() / "vantorel" / "settings.json";
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file) << damage;
  start();
  EXPECT_THAT(program->errorOutput(), HasSubstr("settings.json cannot be read (damaged)"));
  std::stringstream kept;
  kept << std::ifstream(file.string() + ".damaged").rdbuf();
  EXPECT_EQ(kept.str(), damage);
  EXPECT_EQ(startAgain({"--toggle"}), 0);
  EXPECT_TRUE(eventuallySays(mappingOn));
}

}  // namespace
}  // namespace vantorel::test
