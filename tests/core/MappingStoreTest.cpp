#include "MappingStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Machine.h"

namespace vantorel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string key = "gamepad_keyboard_mappings";
const std::string defaultsJson =
    R"([{"gamepadButton":"buttonA","keyboardKey":"space"},{"gamepadButton":"buttonB","keyboardKey":"escape"},)"
    R"({"gamepadButton":"buttonX","keyboardKey":"returnKey"},{"gamepadButton":"buttonY","keyboardKey":"tab"},)"
    R"({"gamepadButton":"dpadUp","keyboardKey":"upArrow"},{"gamepadButton":"dpadDown","keyboardKey":"downArrow"},)"
    R"({"gamepadButton":"dpadLeft","keyboardKey":"leftArrow"},)"
    R"({"gamepadButton":"dpadRight","keyboardKey":"rightArrow"}])";

class Store : public ::testing::Test {
 protected:
  UserDefaults& defaults() { return machine.platform.userDefaults; }
  std::string stored() { return defaults().data(key).value_or("nothing"); }

  Machine machine;
};

TEST_F(Store, BeginsWithTheDefaultsAndSavesThem) {
  const MappingStore store(defaults());
  EXPECT_EQ(store.storedForm(), defaultsJson);
  EXPECT_THAT(machine.take(), ElementsAre("defaults " + key + " data " + defaultsJson));
}

TEST_F(Store, RestoresTheListInItsOrder) {
  const std::string list =
      R"([{"gamepadButton":"menu","keyboardKey":"f1"},{"gamepadButton":"buttonA","keyboardKey":"z"}])";
  machine.platform.userDefaults.prepareData(key, list);
  const MappingStore store(defaults());
  EXPECT_EQ(store.storedForm(), list);
  EXPECT_THAT(machine.take(), IsEmpty()) << "reading does not write";
}

class UselessValue : public Store, public ::testing::WithParamInterface<const char*> {};

TEST_P(UselessValue, GivesTheDefaultsWhichReplaceIt) {
  machine.platform.userDefaults.prepareData(key, GetParam());
  const MappingStore store(defaults());
  EXPECT_EQ(store.mappings.get().size(), 8U);
  EXPECT_EQ(stored(), defaultsJson);
  EXPECT_THAT(machine.takeOutput(), IsEmpty()) << "silently";
}

INSTANTIATE_TEST_SUITE_P(Store, UselessValue,
                         ::testing::Values("[]", "", "[{", "{}",
                                           R"([{"gamepadButton":"buttonA","keyboardKey":"enter"}])",
                                           R"([{"gamepadButton":"buttonA","keyboardKey":"space"},{}])"));

TEST_F(Store, IgnoresATextUnderItsKey) {
  machine.platform.userDefaults.prepareString(key, R"([{"gamepadButton":"menu","keyboardKey":"f1"}])");
  const MappingStore store(defaults());
  EXPECT_EQ(store.mappings.get().size(), 8U);
}

TEST_F(Store, AppendsAButtonThatHadNoKeyAndThenReplacesItInPlace) {
  MappingStore store(defaults());
  store.update(GamepadButton::leftShoulder, KeyboardKey::a);
  ASSERT_EQ(store.mappings.get().size(), 9U);
  store.update(GamepadButton::menu, KeyboardKey::c);
  store.update(GamepadButton::leftShoulder, KeyboardKey::b);
  ASSERT_EQ(store.mappings.get().size(), 10U);
  EXPECT_EQ(store.mappings.get()[8], ButtonMapping(GamepadButton::leftShoulder, KeyboardKey::b));
  EXPECT_EQ(stored(), store.storedForm());
}

TEST_F(Store, SettingTheSameKeyAgainGivesANewRecordAndSaves) {
  MappingStore store(defaults());
  const Uuid before = store.mappings.get().front().id;
  machine.take();
  store.update(GamepadButton::buttonA, KeyboardKey::space);
  EXPECT_EQ(store.mappings.get().size(), 8U);
  EXPECT_FALSE(store.mappings.get().front().id == before);
  EXPECT_THAT(machine.take(), ElementsAre("defaults " + key + " data " + defaultsJson));
}

TEST_F(Store, UpdatesTheFirstOfTwoEntriesForAButton) {
  machine.platform.userDefaults.prepareData(
      key, R"([{"gamepadButton":"menu","keyboardKey":"a"},{"gamepadButton":"menu","keyboardKey":"b"}])");
  MappingStore store(defaults());
  EXPECT_EQ(store.getKeyboardKey(GamepadButton::menu), KeyboardKey::a);
  store.update(GamepadButton::menu, KeyboardKey::c);
  EXPECT_EQ(store.storedForm(),
            R"([{"gamepadButton":"menu","keyboardKey":"c"},{"gamepadButton":"menu","keyboardKey":"b"}])");
}

TEST_F(Store, TellsItsObserversOnceOfEachChange) {
  MappingStore store(defaults());
  int changes = 0;
  const Subscription subscription = store.mappings.observe([&] { ++changes; });
  store.update(GamepadButton::menu, KeyboardKey::a);
  store.update(GamepadButton::menu, KeyboardKey::a);
  EXPECT_EQ(changes, 2);
}

TEST_F(Store, KnowsNoKeyForAnUnmappedButton) {
  const MappingStore store(defaults());
  EXPECT_EQ(store.getKeyboardKey(GamepadButton::menu), std::nullopt);
  EXPECT_EQ(store.getKeyboardKey(GamepadButton::buttonX), KeyboardKey::returnKey);
}

TEST_F(Store, ReadsBackWhatAnEarlierRunSaved) {
  std::vector<ButtonMapping> saved;
  {
    MappingStore store(defaults());
    store.update(GamepadButton::options, KeyboardKey::num0);
    saved = store.mappings;
  }
  const MappingStore store(defaults());
  EXPECT_EQ(store.mappings.get(), saved);
  EXPECT_FALSE(store.mappings.get().front().id == saved.front().id);
}

}  // namespace
}  // namespace vantorel::test
