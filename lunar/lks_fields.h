// The part of JdnToLksDate that the check of a date shares: no label is written, so nothing is
// allocated.
#pragma once

#include "lks_date.h"

namespace Karvel_Sorand {

// Sets the fields GMet to Day from `jdn`; status values and arguments as for JdnToLksDate.
std::int16_t JdnToLksFields(std::int32_t jdn, LksDate& date, bool allowBeforeCe);

}  // namespace Karvel_Sorand
