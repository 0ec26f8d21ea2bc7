// What toolkit.h promises of a text box. What it promises of the rest shows in the form's tests.
#include "memory_toolkit.h"

TEST(TextBoxes, TrimmingKeepsCaretAndSelectionOnTheirCharacters) {
  using Stretch = std::pair<int, int>;
  const std::tuple<Text, Stretch, Text, Stretch> rows[] = {
      // clang-format off
      // the text, what is selected in it, both of them trimmed
      {u"  2026 ", {3, 5}, u"2026", {1, 3}},
      {u"  2026 ", {0, 7}, u"2026", {0, 4}},
      {u"   ", {1, 2}, u"", {0, 0}},
      {u"\t5", {2, 2}, u"\t5", {2, 2}},
      // clang-format on
  };
  Memory::TextBox box(u"");
  for (const auto& [before, selected, after, still_selected] : rows) {
    SCOPED_TRACE(testing::PrintToString(before));
    box.text = before;
    box.selection = {selected.first, selected.second};
    EXPECT_EQ(box.TrimText(), after);
    EXPECT_EQ(box.text, after);
    EXPECT_EQ(Stretch(box.selection.start, box.selection.end), still_selected);
  }
}

TEST(TextBoxes, KeysCountWhereTheyWentDown) {
  const std::tuple<std::string, int> rows[] = {
      // What the box sees of Enter, and how often that counts. D: it goes down, R: it repeats,
      // U: it comes up, O: another key goes down, F: the box loses the focus.
      {"DU", 1}, {"DRRU", 1}, {"OU", 0}, {"RU", 0}, {"DUU", 1}, {"DFU", 0},
  };
  Memory::TextBox box(u"");
  for (const auto& [events, key_ups] : rows) {
    int raised = 0;
    box.KeyUp = [&](std::int16_t key, std::int16_t shift) {
      raised += key == Toolkit::EnterKey && shift == 1;
    };
    for (const char event : events) {
      if (event == 'D') box.NoteKeyDown(Toolkit::EnterKey, false);
      if (event == 'O') box.NoteKeyDown(9, false);
      if (event == 'R') box.NoteKeyDown(Toolkit::EnterKey, true);
      if (event == 'U') box.NoteKeyUp(Toolkit::EnterKey, 1);
      if (event == 'F') box.NoteFocusLost();
    }
    EXPECT_EQ(raised, key_ups) << events;
  }
}
