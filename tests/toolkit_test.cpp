// What toolkit.h promises of a text box. What it promises of the rest shows in the form's tests.
#include "fake_toolkit.h"

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
  Fake::TextBox box(u"");
  for (const auto& [before, selected, after, still_selected] : rows) {
    SCOPED_TRACE(testing::PrintToString(before));
    box.text = before;
    box.selection = {selected.first, selected.second};
    EXPECT_EQ(box.TrimText(), after);
    EXPECT_EQ(box.text, after);
    EXPECT_EQ(Stretch(box.selection.start, box.selection.end), still_selected);
  }
}
