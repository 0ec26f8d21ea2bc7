// The phase of the moon. It depends on the day of the month alone, not on the month's type.
#pragma once

#include <cstdint>
#include <string_view>

namespace Karvel_Sorand {

// The name of the phase on day `day` of a month. A day below 1 counts as waxing crescent, a day
// above 30 as waning crescent.
std::u16string_view MoonPhaseName(std::int16_t day);

}  // namespace Karvel_Sorand
