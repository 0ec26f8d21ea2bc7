#include "lks_date.h"

namespace Karvel_Sorand {

std::u16string_view MoonPhaseName(std::int16_t day) {
  struct Phase {
    std::int16_t last_day;
    std::u16string_view name;
  };
  static constexpr Phase Phases[] = {
      {6, u"crescent moon (waxing)"}, {8, u"half moon (1st quarter)"},
      {14, u"gibbous moon (waxing)"}, {15, u"full moon"},
      {22, u"gibbous moon (waning)"}, {24, u"half moon (3rd quarter)"},
  };
  if (day == 1) return u"dark moon";
  for (const Phase& phase : Phases) {
    if (day <= phase.last_day) return phase.name;
  }
  return u"crescent moon (waning)";
}

}  // namespace Karvel_Sorand
