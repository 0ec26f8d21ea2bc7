// What toolkit.h promises of a text box. The tests of the form cover the rest.
#include "fake_toolkit.h"

TEST(TextBoxes, TrimmingKeepsTheSelectionOnItsCharacters) {
  const std::tuple<Text, Fake::TextBox::Selection, Text, Fake::TextBox::Selection> rows[] = {
      // The text and its selection, both of them trimmed.
      {u"  2026 ", {3, 5}, u"2026", {1, 3}},
      {u"  2026 ", {0, 7}, u"2026", {0, 4}},
      {u"   ", {1, 2}, u"", {0, 0}},
  };
  Fake::TextBox box(u"");
  for (const auto& [before, selected, after, still_selected] : rows) {
    box.text = before;
    box.selection = selected;
    EXPECT_EQ(box.TrimText(), after);
    EXPECT_EQ(box.text, after);
    EXPECT_EQ(box.selection, still_selected) << testing::PrintToString(before);
  }
}

TEST(TextBoxes, RaiseAKeyUpOnlyAfterItsKeyDown) {
  Fake::TextBox box(u"");
  std::string raised;
  box.KeyUp = [&](std::int16_t key, std::int16_t) { raised += static_cast<char>(key); };
  box.NoteKeyUp('A', 0);
  box.NoteKeyDown('B', true);  // a repeat
  box.NoteKeyUp('B', 0);
  box.NoteKeyDown('C', false);
  box.NoteFocusLost();
  box.NoteKeyDown('D', false);
  box.NoteKeyDown('E', false);
  for (const char key : {'C', 'D', 'E', 'D'}) box.NoteKeyUp(key, 0);
  EXPECT_EQ(raised, "DE");
}
