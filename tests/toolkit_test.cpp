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
  const std::tuple<const char*, std::function<void()>> rows[] = {
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
  for (const auto& [property, set] : rows) {
    SCOPED_TRACE(property);
    Memory::screen.platform_calls = 0;
    set();
    EXPECT_EQ(Memory::screen.platform_calls, 1);
    set();
    EXPECT_EQ(Memory::screen.platform_calls, 1);
  }
}

TEST_F(Toolkits, TrimmingKeepsCaretAndSelectionOnTheirCharacters) {
  using Stretch = std::pair<int, int>;
  const std::tuple<View, Stretch, View, Stretch, int> rows[] = {
      // clang-format off
      {u"2026", {1, 3}, u"2026", {1, 3}, 0},
      {u"  2026 ", {3, 5}, u"2026", {1, 3}, 1},
      {u"  2026 ", {0, 7}, u"2026", {0, 4}, 1},
      {u"20 26  ", {2, 2}, u"20 26", {2, 2}, 1},
      {u"   ", {1, 2}, u"", {0, 0}, 1},
      {u"\t5", {2, 2}, u"\t5", {2, 2}, 0},
      // clang-format on
  };
  for (const auto& [before, selected, after, still_selected, platform_calls] : rows) {
    SCOPED_TRACE(testing::PrintToString(before));
    Memory::TextBox box(before);
    box.selection = {selected.first, selected.second};
    Memory::screen.platform_calls = 0;
    EXPECT_EQ(box.TrimText(), after);
    EXPECT_EQ(box.text, after);
    EXPECT_EQ(Stretch(box.selection.start, box.selection.end), still_selected);
    EXPECT_EQ(Memory::screen.platform_calls, platform_calls);
  }
}

TEST_F(Toolkits, KeysCountWhereTheyWentDown) {
  enum KeyEvent { Down, Repeat, Up, OtherDown, FocusLost };
  const std::tuple<const char*, std::vector<KeyEvent>, int> rows[] = {
      {"a press", {Down, Up}, 1},
      {"a key held down", {Down, Repeat, Repeat, Up}, 1},
      {"a key-up without its key-down", {Up}, 0},
      {"a second key-up", {Down, Up, Up}, 1},
      {"the focus was elsewhere meanwhile", {Down, FocusLost, Up}, 0},
      {"the key-up of another key", {OtherDown, Up}, 0},
  };
  for (const auto& [what, events, key_ups] : rows) {
    SCOPED_TRACE(what);
    Memory::TextBox box(u"");
    int raised = 0;
    box.KeyUp = [&](std::int16_t, std::int16_t) { ++raised; };
    for (const KeyEvent event : events) {
      if (event == Down) box.NoteKeyDown(Toolkit::EnterKey, false);
      if (event == Repeat) box.NoteKeyDown(Toolkit::EnterKey, true);
      if (event == OtherDown) box.NoteKeyDown(u'A', false);
      if (event == Up) box.NoteKeyUp(Toolkit::EnterKey, 0);
      if (event == FocusLost) box.NoteFocusLost();
    }
    EXPECT_EQ(raised, key_ups);
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
