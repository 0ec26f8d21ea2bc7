// What toolkit.h promises on every platform, on bare controls in memory.
#include "memory_toolkit.h"

struct Toolkits : testing::Test {
  Memory::Desktop window;
  Memory::Label label{u"stored"};
  Memory::TextBox box{u"stored"};
  Memory::List list;
  Memory::OptionButton first{window.options}, second{window.options};
  Memory::CommandButton button{u"button"}, heir{u"heir"};
};

TEST_F(Toolkits, SelectionsFromCodeClickAlways) {
  std::string clicks;
  list.Click = [&] { clicks += "list "; };
  first.Click = [&] { clicks += "first "; };
  second.Click = [&] { clicks += "second "; };
  list.SetListIndex(0);
  list.SetListIndex(0);
  first.Select();
  first.Select();
  EXPECT_EQ(clicks, "list list first first ");

  // The user's pick of an option counts when it is another.
  clicks.clear();
  first.NoteChosen();
  second.NoteChosen();
  EXPECT_EQ(clicks, "second ");
  EXPECT_FALSE(first.Value());
}

TEST_F(Toolkits, AValueThatIsThereDoesNotReachThePlatform) {
  const std::tuple<const char*, std::function<void()>> rows[] = {
      {"caption of a window", [&] { window.SetCaption(u"new"); }},
      {"colour of a window", [&] { window.SetBackColor(0xE8F0); }},
      {"caption of a label", [&] { label.SetCaption(u"new"); }},
      {"text of a box", [&] { box.SetText(u"stores"); }},
      {"selection of a list", [&] { list.SetListIndex(0); }},
      {"selection of an option", [&] { first.Select(); }},
      {"weight of an option", [&] { first.SetFontBold(true); }},
      {"state of a button", [&] { button.SetEnabled(false); }},
  };
  for (const auto& [property, set] : rows) {
    Memory::screen.platform_calls = 0;
    set();
    set();
    EXPECT_EQ(Memory::screen.platform_calls, 1) << property;
  }
}

TEST_F(Toolkits, TrimmingKeepsCaretAndSelectionOnTheirCharacters) {
  using Stretch = std::pair<int, int>;
  const std::tuple<View, Stretch, View, Stretch> rows[] = {
      // clang-format off
      {u"2026", {1, 3}, u"2026", {1, 3}},
      {u"  2026 ", {3, 5}, u"2026", {1, 3}},
      {u"  2026 ", {0, 7}, u"2026", {0, 4}},
      {u"20 26  ", {2, 2}, u"20 26", {2, 2}},
      {u"   ", {1, 2}, u"", {0, 0}},
      {u"\t5", {2, 2}, u"\t5", {2, 2}},
      // clang-format on
  };
  for (const auto& [before, selected, after, still_selected] : rows) {
    SCOPED_TRACE(testing::PrintToString(before));
    box.text = before;
    box.selection = {selected.first, selected.second};
    EXPECT_EQ(box.TrimText(), after);
    EXPECT_EQ(box.text, after);
    EXPECT_EQ(Stretch(box.selection.start, box.selection.end), still_selected);
  }
}

TEST_F(Toolkits, KeysCountWhereTheyWentDown) {
  enum KeyEvent { Down, Repeat, Up, FocusLost };
  const std::tuple<const char*, std::vector<KeyEvent>, int> rows[] = {
      {"a press", {Down, Up}, 1},
      {"a key held down", {Down, Repeat, Repeat, Up}, 1},
      {"a key-up without its key-down", {Up}, 0},
      {"a key that went down elsewhere", {Repeat, Up}, 0},
      {"a second key-up", {Down, Up, Up}, 1},
      {"the focus was elsewhere meanwhile", {Down, FocusLost, Up}, 0},
  };
  for (const auto& [what, events, key_ups] : rows) {
    SCOPED_TRACE(what);
    Memory::TextBox box(u"");
    int raised = 0;
    box.KeyUp = [&](std::int16_t, std::int16_t) { ++raised; };
    for (const KeyEvent event : events) {
      if (event == Down) box.NoteKeyDown(Toolkit::EnterKey, false);
      if (event == Repeat) box.NoteKeyDown(Toolkit::EnterKey, true);
      if (event == Up) box.NoteKeyUp(Toolkit::EnterKey, 0);
      if (event == FocusLost) box.NoteFocusLost();
    }
    EXPECT_EQ(raised, key_ups);
  }
}

TEST_F(Toolkits, AButtonThatTurnsDisabledHandsTheFocusOn) {
  button.FocusHeir = &heir;
  button.Click = [] { ADD_FAILURE() << "pressed while it is disabled"; };
  Memory::screen.focus = &button;
  button.SetEnabled(false);
  EXPECT_EQ(Memory::screen.focus, &heir);
  button.NotePressed();
  button.SetEnabled(true);
  Memory::screen.focus = nullptr;
  button.SetEnabled(false);
  EXPECT_EQ(Memory::screen.focus, nullptr) << "the focus was elsewhere";
}
