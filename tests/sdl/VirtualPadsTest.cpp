#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>

#include "ControllersTest.h"
#include "TemporaryDirectory.h"

namespace vantorel::test {
namespace {

class VirtualPadLines : public ControllersTest {
 protected:
  /// The reason for which `line` is refused; empty when it is carried out.
  std::string refusal(const std::string& line) {
    std::string reason;
    onSdlThread([&] {
      try {
        pads_->execute(line);
      } catch (const std::invalid_argument& error) {
        reason = error.what();
      }
    });
    return reason;
  }

  VirtualPadLines() {
    onSdlThread([this] { pads_ = std::make_unique<VirtualPads>(); });
  }
  ~VirtualPadLines() override {
    onSdlThread([this] { pads_.reset(); });
  }

 private:
  std::unique_ptr<VirtualPads> pads_;
};

TEST_F(VirtualPadLines, ThatAreWrongAreRefusedWithAReason) {
  EXPECT_EQ(refusal("attach pad"), "");
  EXPECT_EQ(refusal("attach pad"), "there is such a pad already");
  EXPECT_EQ(refusal("plug pad"), "no such command");
  EXPECT_EQ(refusal("attach"), "something is missing");
  EXPECT_EQ(refusal("attach other 045e"), "something is missing");
  EXPECT_EQ(refusal("attach other 1045e 028e"), "a number out of range");
  EXPECT_EQ(refusal("attach other 45zz 028e"), "no number");
  EXPECT_EQ(refusal("attach other hello 028e"), "no number");
  EXPECT_EQ(refusal("detach other"), "no such pad");
  EXPECT_EQ(refusal("button pad start 1"), "no such button");
  EXPECT_EQ(refusal("button pad menu"), "something is missing");
  EXPECT_EQ(refusal("button other menu 1"), "no such pad");
  EXPECT_EQ(refusal("axis pad leftz 1"), "no such axis");
  EXPECT_EQ(refusal("axis pad leftx 32768"), "a number out of range");
  EXPECT_EQ(refusal("axis pad leftx 99999999999999999999"), "a number out of range");
  EXPECT_EQ(refusal("axis pad leftx 1 2"), "something is too much");
}

TEST_F(VirtualPadLines, MayBeEmpty) {
  EXPECT_EQ(refusal(""), "");
  EXPECT_EQ(refusal("   "), "");
}

class VirtualPadPipeTest : public ControllersTest {
 protected:
  VirtualPadPipeTest() : path((directory.path() / "pads").string()) {}
  ~VirtualPadPipeTest() override {
    stop();
    unsetenv("VANTOREL_VIRTUAL_PADS");
    if (writing >= 0) close(writing);
  }

  void startWithPipe() {
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    setenv("VANTOREL_VIRTUAL_PADS", path.c_str(), 1);
    start();
    service().controllers();
    writing = open(path.c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_GE(writing, 0);
  }

  void write(const std::string& text) const {
    ASSERT_EQ(::write(writing, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }

  const TemporaryDirectory directory;
  const std::string path;
  int writing = -1;
};

TEST_F(VirtualPadPipeTest, WorksPadsFromAnotherProcess) {
  startWithPipe();
  write("attach \"Xbox Wireless Controller\" 045e 02ea\n");
  ASSERT_TRUE(queue_.runUntil([&] { return find("Xbox Wireless Controller") != nullptr; }));
  const auto pad = find("Xbox Wireless Controller");
  EXPECT_EQ(pad->productCategory(), "Xbox One");
  const auto gamepad = pad->extendedGamepad();
  ASSERT_NE(gamepad, nullptr);
  int presses = 0;
  int releases = 0;
  gamepad->input(GamepadButton::buttonB)->setPressedChangedHandler([&](bool isPressed) {
    ++(isPressed ? presses : releases);
  });
  write("button \"Xbox Wireless Controller\" buttonB 1\nbutton \"Xbox Wireless Controller\" buttonB 0\n");
  EXPECT_TRUE(queue_.runUntil([&] { return releases == 1; }));
  EXPECT_EQ(presses, 1);
  write("axis \"Xbox Wireless Controller\" leftx 32767\n");
  EXPECT_TRUE(waitUntil([&] { return gamepad->leftThumbstick().x == 1.0F; }));
  write("detach \"Xbox Wireless Controller\"\n");
  EXPECT_TRUE(queue_.runUntil([&] { return find("Xbox Wireless Controller") == nullptr; }));
  EXPECT_EQ(gamepad->leftThumbstick().x, 0.0F);
}

TEST_F(VirtualPadPipeTest, CarriesALineOutWhenItIsWhole) {
  startWithPipe();
  write("att");
  write("ach pad\nnonsense\nattach second\natta");
  EXPECT_TRUE(queue_.runUntil([&] { return find("second") != nullptr; }));
  EXPECT_NE(find("pad"), nullptr);
  write("ch third\n");
  EXPECT_TRUE(queue_.runUntil([&] { return find("third") != nullptr; }));
}

TEST_F(VirtualPadPipeTest, CausesNoWakeUpsOnceItsWriterHasGone) {
  startWithPipe();
  write("attach pad\n");
  ASSERT_TRUE(queue_.runUntil([&] { return find("pad") != nullptr; }));
  close(writing);
  writing = -1;
  EXPECT_TRUE(waitUntil([&] {
    const std::uint64_t before = service().wakeUps();
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    return service().wakeUps() == before;
  }));
}

TEST_F(VirtualPadPipeTest, AFilePlugsPadsInBeforeTheStartWithoutNotifications) {
  std::ofstream(path) << "attach first\nattach second 054c 0ce6\nbutton second buttonA 1\n";
  setenv("VANTOREL_VIRTUAL_PADS", path.c_str(), 1);
  start();
  int notifications = 0;
  const auto subscription =
      service().observeConnect([&](const std::shared_ptr<Controller>&) { ++notifications; });
  const auto first = find("first");
  const auto second = find("second");
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->productCategory(), "DualSense");
  EXPECT_TRUE(second->extendedGamepad()->input(GamepadButton::buttonA)->isPressed());
  onSdlThread([] {});
  queue_.run();
  EXPECT_EQ(notifications, 0);
}

TEST_F(VirtualPadPipeTest, ThatIsMissingLeavesTheServiceWorking) {
  setenv("VANTOREL_VIRTUAL_PADS", (path + "-missing").c_str(), 1);
  start();
  EXPECT_NE(attach("pad"), nullptr);
}

}  // namespace
}  // namespace vantorel::test
