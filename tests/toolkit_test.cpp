// What toolkit.h promises on every platform, on bare controls in memory.
#include <gtest/gtest.h>

#include "memory_toolkit.h"

namespace {

constexpr Toolkit::Color Yellow = 0xE8F0;

struct Toolkits : testing::Test {
  Toolkits() { Memory::screen = {}; }
};

}  // namespace

TEST_F(Toolkits, SelectionsFromCodeClickAlways) {
  Memory::List list;
  Toolkit::OptionGroup group;
  Memory::OptionButton first(group), second(group);
  std::string clicks;
  list.Click = [&] { clicks += "list "; };
  first.Click = [&] { clicks += "first "; };
  second.Click = [&] { clicks += "second "; };
  list.AddItem(u"item");
  list.SetListIndex(0);
  list.SetListIndex(0);
  first.Select();
  first.Select();
  EXPECT_EQ(clicks, "list list first first ");

  // The user's pick of an option counts when it is another.
  clicks.clear();
  first.NoteChosen();
  EXPECT_EQ(clicks, "");
  second.NoteChosen();
  EXPECT_EQ(clicks, "second ");
  EXPECT_FALSE(first.Value());
  EXPECT_TRUE(second.Value());
}

TEST_F(Toolkits, AValueThatIsThereDoesNotReachThePlatform) {
  Memory::Desktop window;
  Memory::Frame frame;
  Memory::Label label(u"stored");
  Memory::TextBox box(u"stored");
  Memory::List list;
  list.AddItem(u"item");
  Toolkit::OptionGroup group;
  Memory::OptionButton option(group);
  Memory::CommandButton button(u"stored");
  const struct {
    const char* property;
    std::function<void()> set;
  } rows[] = {
      {"caption of a window", [&] { window.SetCaption(u"new"); }},
      {"colour of a window", [&] { window.SetBackColor(Yellow); }},
      {"colour of a frame", [&] { frame.SetBackColor(Yellow); }},
      {"colour of a label", [&] { label.SetBackColor(Yellow); }},
      {"caption of a label", [&] { label.SetCaption(u"new"); }},
      {"text of a box", [&] { box.SetText(u"stores"); }},
      {"selection of a list", [&] { list.SetListIndex(0); }},
      {"selection of an option", [&] { option.Select(); }},
      {"weight of an option", [&] { option.SetFontBold(true); }},
      {"state of a button", [&] { button.SetEnabled(false); }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.property);
    Memory::screen.platform_calls = 0;
    row.set();
    EXPECT_EQ(Memory::screen.platform_calls, 1);
    row.set();
    EXPECT_EQ(Memory::screen.platform_calls, 1);
  }
}

TEST_F(Toolkits, TrimmingKeepsCaretAndSelectionOnTheirCharacters) {
  const struct {
    View before;
    int start, end;
    View after;
    int new_start, new_end, platform_calls;
  } rows[] = {
      {u"2026", 1, 3, u"2026", 1, 3, 0},     {u"", 0, 0, u"", 0, 0, 0},
      {u"  2026 ", 3, 5, u"2026", 1, 3, 1},  {u"  2026 ", 0, 7, u"2026", 0, 4, 1},
      {u"20 26  ", 2, 2, u"20 26", 2, 2, 1}, {u"   ", 1, 2, u"", 0, 0, 1},
      {u"\t5", 2, 2, u"\t5", 2, 2, 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.before));
    Memory::TextBox box(row.before);
    box.selection = {row.start, row.end};
    Memory::screen.platform_calls = 0;
    EXPECT_EQ(box.TrimText(), row.after);
    EXPECT_EQ(box.text, row.after);
    EXPECT_EQ(box.selection.start, row.new_start);
    EXPECT_EQ(box.selection.end, row.new_end);
    EXPECT_EQ(Memory::screen.platform_calls, row.platform_calls);
  }
}

TEST_F(Toolkits, KeysCountWhereTheyWentDown) {
  enum KeyEvent { Down, Repeat, Up, OtherDown, FocusLost };
  const struct {
    const char* what;
    std::vector<KeyEvent> events;
    int key_ups;
  } rows[] = {
      {"a press", {Down, Up}, 1},
      {"a key held down", {Down, Repeat, Repeat, Up}, 1},
      {"a key-up without its key-down", {Up}, 0},
      {"a second key-up", {Down, Up, Up}, 1},
      {"a key that went down elsewhere", {Repeat, Up}, 0},
      {"the focus was elsewhere meanwhile", {Down, FocusLost, Up}, 0},
      {"the key-up of another key", {OtherDown, Up}, 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    Memory::TextBox box(u"");
    std::vector<std::int16_t> key_ups;
    box.KeyUp = [&](std::int16_t key, std::int16_t) { key_ups.push_back(key); };
    for (const KeyEvent event : row.events) {
      if (event == Down) box.NoteKeyDown(Toolkit::EnterKey, false);
      if (event == Repeat) box.NoteKeyDown(Toolkit::EnterKey, true);
      if (event == OtherDown) box.NoteKeyDown(u'A', false);
      if (event == Up) box.NoteKeyUp(Toolkit::EnterKey, 0);
      if (event == FocusLost) box.NoteFocusLost();
    }
    EXPECT_EQ(std::ranges::count(key_ups, Toolkit::EnterKey), row.key_ups);
  }
}

TEST_F(Toolkits, AButtonThatTurnsDisabledHandsTheFocusOn) {
  Memory::CommandButton heir(u"heir"), button(u"button"), other(u"other");
  button.FocusHeir = &heir;
  int presses = 0;
  button.Click = [&] { ++presses; };
  for (const Memory::CommandButton* const focused : {&button, &other}) {
    SCOPED_TRACE(testing::PrintToString(focused->Caption()));
    button.SetEnabled(true);
    Memory::screen.focus = focused;
    button.SetEnabled(false);
    EXPECT_EQ(Memory::screen.focus, focused == &button ? &heir : &other);
    button.NotePressed();
    EXPECT_EQ(presses, 0);
  }
}

TEST_F(Toolkits, OnlyTheFirstActivationCounts) {
  Memory::Desktop window;
  int activations = 0;
  window.Activate = [&] { ++activations; };
  window.NoteActivated();
  window.NoteActivated();
  EXPECT_EQ(activations, 1);
}
