#include "main_window.h"

bool frmMain::CheckSameDay(std::int16_t mode) {
  const auto rows_agree = [this] {
    EuroDate euro{};
    std::int32_t jdn[2] = {};
    for (const Calendar row : {Gregorian, Solar}) {
      std::int16_t status = 0;
      ReadEuroDate(row, euro, status);
      if (status != 0) return false;
      DatePr2::EuroDateToJdn(euro);
      jdn[row] = euro.jdn;
    }
    if (jdn[Gregorian] != jdn[Solar]) return false;
    // The status does not matter: a lunar date that does not exist still adds up to a day, and any
    // other that is refused leaves Jdn at 0, so it passes for 24 November -4713. No lunar date is
    // that day.
    Karvel_Sorand::LksDate lks{};
    std::int16_t status = 0;
    ReadLksDate(lks, status);
    return lks.Jdn == jdn[Gregorian];
  };
  const bool is_known = mode == 0 || mode == 1;
  const bool same = is_known ? mode == 1 : rows_agree();
  lblSameDay.SetCaption(same ? u"The dates above denote the same day."
                             : u"The dates above do not denote the same day.");
  return same;
}
