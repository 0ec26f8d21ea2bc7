// The label of a date, written into a text that is there already.
#pragma once

#include "lks_date.h"

namespace Karvel_Sorand {

// Makes `label` the label of `date`. `label` may be the date's own Label, which is not read.
void WriteLksDateLabel(const LksDate& date, std::u16string& label);

}  // namespace Karvel_Sorand
