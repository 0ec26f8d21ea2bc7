// The form frmMain: its controls and the handlers of their events.
//
// The index of a date control is its calendar. The date fields are the only store of the current
// date: ReadEuroDate and ReadLksDate are the only ways from the fields into records, ShowEuroDate
// and ShowLksDate the only ways back. A selection set from code runs the click handler at once, and
// the handlers of the combo boxes clear a weekday label; so whoever sets combo boxes and a label
// sets the label last.
//
// Reads, shows and the tick are silent; only a command shows a message box.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "control_group.h"
#include "euro_date.h"
#include "lks_date.h"
#include "toolkit.h"

struct ProgramVersion {
  int major_number, minor_number;
};

class frmMain {
  std::vector<std::unique_ptr<Toolkit::Control>> controls;  // one for each row of the layout

  template <class T>
  T& Control(ControlRow<T> which) const {
    return static_cast<T&>(*controls[which.row]);
  }
  template <class T, std::size_t count>
  ControlGroup<T, count> Group(GroupRows<T, count> which) const {
    ControlGroup<T, count> group{};
    for (std::size_t index = 0; index < count; ++index) {
      group.members[index] = static_cast<T*>(controls[which.rows[index]].get());
    }
    return group;
  }

 public:
  // The indexes of the controls, with the 16 bits of the handlers' arguments. Solar is the Solar
  // Karvel-Gregorian, Lunar the Lunar Karvel-Sorand calendar. All steps but Today start from the
  // chosen date.
  enum Calendar : std::int16_t { Gregorian, Solar, Lunar };
  enum Step : std::int16_t { Today, Back, Forward };

  // `notice` is the publisher's, one line.
  frmMain(Toolkit::Window& its_window, ProgramVersion its_version, std::u16string_view notice);

  Toolkit::Window& window;
  Toolkit::Timer& Timer1 = window;
  Toolkit::Frame& Frame1 = Control<Toolkit::Frame>(u"Frame1");
  Toolkit::TextBox& txbOutput = Control<Toolkit::TextBox>(u"txbOutput");
  Toolkit::CommandButton& cmdConvert = Control<Toolkit::CommandButton>(u"cmdConvert");
  ControlGroup<Toolkit::CommandButton, 3> cmdTBF =  // by Step; all others by Calendar
      Group<Toolkit::CommandButton, 3>(u"cmdTBF");
  Toolkit::CommandButton& cmdCopy = Control<Toolkit::CommandButton>(u"cmdCopy");
  Toolkit::CommandButton& cmdClear = Control<Toolkit::CommandButton>(u"cmdClear");
  Toolkit::CommandButton& cmdQuit = Control<Toolkit::CommandButton>(u"cmdQuit");
  ControlGroup<Toolkit::OptionButton, 3> optCalendar =
      Group<Toolkit::OptionButton, 3>(u"optCalendar");
  ControlGroup<Toolkit::ComboBox, 3> cboMonth = Group<Toolkit::ComboBox, 3>(u"cboMonth");
  ControlGroup<Toolkit::ComboBox, 3> cboDay = Group<Toolkit::ComboBox, 3>(u"cboDay");
  ControlGroup<Toolkit::TextBox, 2> txbYearCE = Group<Toolkit::TextBox, 2>(u"txbYearCE");
  ControlGroup<Toolkit::Label, 3> lblDayOfWeek = Group<Toolkit::Label, 3>(u"lblDayOfWeek");
  Toolkit::ComboBox& cboGMet = Control<Toolkit::ComboBox>(u"cboGMet");
  Toolkit::ComboBox& cboMType = Control<Toolkit::ComboBox>(u"cboMType");
  Toolkit::ComboBox& cboYearInMet = Control<Toolkit::ComboBox>(u"cboYearInMet");
  Toolkit::TextBox& txbMetNum = Control<Toolkit::TextBox>(u"txbMetNum");
  Toolkit::Label& lblM = Control<Toolkit::Label>(u"lblM");
  Toolkit::Label& lblDash = Control<Toolkit::Label>(u"lblDash");
  Toolkit::Label& lblSameDay = Control<Toolkit::Label>(u"lblSameDay");
  Toolkit::Label& lblCopyright = Control<Toolkit::Label>(u"lblCopyright");

  // start_up.cpp. Form_Load prepares the window for the screen; to be called once. FillDateLists
  // fills each combo box and selects an item.
  void Form_Load();
  void FillDateLists();

  // read_date.cpp. Fill a record from row `Index` (Gregorian or Solar) or from the lunar row, and
  // trim the spaces at both ends of the text boxes that they read. The status is 0, or negative for
  // a bad field. ReadEuroDate then leaves `year` as it was and sets `valid` to 0; it does not test
  // that the date exists. ReadLksDate also returns the statuses of CheckLksDate, and LksWrongYear
  // if no year or no month is selected.
  enum YearStatus : std::int16_t {
    YearAccepted = 0,
    YearEmpty = -1,
    YearNotDigits = -2,   // a character other than a digit or "-"
    YearMinusInside = -3  // a "-" after another character
  };
  enum MetNumStatus : std::int16_t { MetNumEmpty = -1, MetNumNotDigits = -2 };
  void ReadEuroDate(std::int16_t Index, EuroDate& date, std::int16_t& status);
  void ReadLksDate(Karvel_Sorand::LksDate& date, std::int16_t& status);

  // show_date.cpp. Fill row `Index` (Gregorian or Solar) or the lunar row from a record. The Solar
  // row takes its weekday from the label of the lunar row, so for one day ShowLksDate comes first.
  void ShowEuroDate(const EuroDate& date, std::int16_t Index);
  void ShowLksDate(const Karvel_Sorand::LksDate& date);

  // convert.cpp. Carries the date of the selected calendar to the other rows and adds a block to
  // the pane. Enter in a date field of the selected calendar does the same when it is released.
  void cmdConvert_Click();
  void txbYearCE_KeyUp(std::int16_t Index, std::int16_t KeyCode, std::int16_t Shift);
  void txbMetNum_KeyUp(std::int16_t KeyCode, std::int16_t Shift);

  // same_day.cpp. Shows in lblSameDay whether the three rows denote one day, and returns that. Mode
  // 0 takes False and mode 1 takes True without reading anything, which the form does not use; any
  // other compares.
  static constexpr std::int16_t CompareRows = -1;
  bool CheckSameDay(std::int16_t mode);

  // tick.cpp. Once a second: the same-day sentence, and which commands can be pressed.
  void Timer1_Timer();

  // combo_clicks.cpp. A new selection clears the weekday of its row and moves the focus to Convert.
  // While the window is being loaded, months and days do nothing.
  void cboGMet_Click();
  void cboYearInMet_Click();
  void cboMonth_Click(std::int16_t Index);
  void cboDay_Click(std::int16_t Index);
  void FocusConvert();  // if the Convert button is visible and enabled

  // step.cpp. Moves all rows to today, or to the day before or after the date of the selected
  // calendar, by the Step `Index`; the pane stays as it is. Form_Activate shows the first screen:
  // today, converted once.
  void cmdTBF_Click(std::int16_t Index);
  void Form_Activate();

  // small_commands.cpp. None of them touches a date.
  void optCalendar_Click(std::int16_t Index);  // shows the chosen calendar in bold
  void cmdCopy_Click();                        // the whole pane to the clipboard, as plain text
  void cmdClear_Click();                       // empties the pane
  void cmdQuit_Click();                        // ends the program, without a question
  void Form_Unload(std::int16_t Cancel);       // the same when the window is closed; ignores Cancel

 private:
  void WireEvents();

  // The row that the next command reads: that of the selected option.
  Calendar SelectedCalendar() const;

  // The JDN of the date of the selected calendar, if its row can be read and the date exists.
  std::optional<std::int32_t> ReadSelectedJdn();
  std::optional<std::int32_t> TargetOfStep(Step step);

  // The two conversions behind Convert. They fill both records, or show a message box and return
  // false.
  bool ConvertFromLks(EuroDate& euro, Karvel_Sorand::LksDate& lks);
  bool ConvertFromEuro(std::int16_t Index, EuroDate& euro, Karvel_Sorand::LksDate& lks);
  void AppendBlock(Calendar calendar, const EuroDate& euro, const Karvel_Sorand::LksDate& lks);

  void ClearWeekday(std::int16_t row);  // and moves the focus to Convert

  ProgramVersion version;
  std::u16string copyright;
  bool FormLoaded = false;  // true after Form_Load
};
