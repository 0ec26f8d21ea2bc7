// The steps of the conversions that more than one of them takes.
#pragma once

#include "lks_date.h"

namespace Karvel_Sorand {

// The days before month `month` in a year of any type. Months of 30 and 29 days take turns, so two
// have 59 days; of an odd number of months the last has 30, which is half of 59 rounded up.
constexpr std::int32_t DaysBeforeMonth(std::int32_t month) {
  return (59 * (month - 1) + 1) / 2;
}

// Sets the fields GMet to Day from `jdn`, and no label; statuses and arguments as for JdnToLksDate.
std::int16_t JdnToLksFields(std::int32_t jdn, LksDate& date, bool allowBeforeCe);

// Makes `label` the label of `date`. `label` may be the date's own Label, which is not read.
void WriteLksDateLabel(const LksDate& date, std::u16string& label);

}  // namespace Karvel_Sorand
