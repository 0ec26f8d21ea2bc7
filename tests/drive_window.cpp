// Uses the built tandem.exe as a person does, from outside, by keyboard, mouse and clipboard.
#include <gtest/gtest.h>

#include "desk.h"

using namespace Desk;

namespace {

class RealWindow : public testing::Test {
 protected:
  std::size_t PaneLength() const { return tandem.Pane().size(); }
  bool IsEnabled(View name, int index = Toolkit::NoIndex) const {
    return IsWindowEnabled(tandem.Control(name, index)) != FALSE;
  }
  LRESULT Index(HWND list) const { return SendMessageW(list, CB_GETCURSEL, 0, 0); }
  bool IsOpen(HWND list) const { return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) != 0; }
  bool ConvertAddsABlock() {
    const std::size_t before = PaneLength();
    tandem.Push(convert);
    return Wait([&] { return PaneLength() > before; });
  }
  void ExpectBox(View text, View title, int icon, WORD key = VK_RETURN) {
    const Desk::MessageBox box = tandem.WaitForBox();
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.title, title);
    EXPECT_EQ(box.icon, icon);
    Press(key);
    EXPECT_TRUE(Wait([&] { return !tandem.FindBox(); }));
  }

  Tandem tandem;
  const HWND convert = tandem.Control(u"cmdConvert");
  const HWND pane = tandem.Control(u"txbOutput");
  const HWND year = tandem.Control(u"txbYearCE", 0);
  const HWND day = tandem.Control(u"cboDay", 0);
};

constexpr View May7 =
    u"May 7 2010 Friday | May 7 2010 Tuesday | "
    u"GMet-2 B 12 LYC-15 LA-5 24 Tuesday";

}  // namespace

TEST_F(RealWindow, StandsAsStored) {
  const int dpi = tandem.Dpi();
  const auto pixels = [dpi](int twips) { return MulDiv(twips, dpi, 1440); };
  RECT client, outer;
  GetClientRect(tandem.Window(), &client);
  GetWindowRect(tandem.Window(), &outer);
  EXPECT_EQ(client.right, pixels(ClientWidth));
  EXPECT_EQ(client.bottom, pixels(ClientHeight));
  RECT work;
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  EXPECT_NEAR(outer.left - work.left, work.right - outer.right, 1);
  EXPECT_NEAR(outer.top - work.top, work.bottom - outer.bottom, 1);
  EXPECT_EQ(GetWindowLongPtrW(tandem.Window(), GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
  EXPECT_EQ(TextOf(tandem.Window()), u"Tandem Karvel-Sorand Calendar, Version " PROGRAM_VERSION);

  const wchar_t* const classes[] = {L"Button",   L"Static", L"Edit",
                                    L"ComboBox", L"Button", L"Button"};
  for (const Toolkit::StoredControl& row : StoredLayout()) {
    const HWND control = tandem.Control(row);
    const RECT place = tandem.Place(control);
    const std::string name(row.name.begin(), row.name.end());
    EXPECT_EQ(place.left, pixels(row.container.left + row.left)) << name << row.index;
    EXPECT_EQ(place.top, pixels(row.container.top + row.top)) << name << row.index;
    EXPECT_EQ(place.right - place.left, pixels(row.width)) << name << row.index;
    EXPECT_EQ(place.bottom - place.top, pixels(row.height)) << name << row.index;
    wchar_t class_name[32];
    GetClassNameW(control, class_name, 32);
    EXPECT_STRCASEEQ(
        std::string(class_name, class_name + wcslen(class_name)).c_str(),
        std::string(classes[int(row.kind)], classes[int(row.kind)] + wcslen(classes[int(row.kind)]))
            .c_str());
    if (row.kind == Toolkit::Kind::OptionButton || row.kind == Toolkit::Kind::CommandButton) {
      EXPECT_EQ(TextOf(control), row.text);
    }
    // Its whole text can be read on it, in its font; the selected option is bold.
    Text shown = TextOf(control);
    shown = shown.substr(0, shown.find(u'\r'));
    const bool bold = row.kind == Toolkit::Kind::OptionButton && row.index == 0;
    if (!shown.empty()) {
      EXPECT_LT(Difference(PictureOfText(shown, row.font, bold, dpi), PictureOf(control)), 0.02)
          << name << row.index;
    }
  }
}
