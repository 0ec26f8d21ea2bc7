#include "euro_date.h"

namespace DatePr2 {

namespace {

struct {
  std::array<std::u16string_view, 13> month_names;
  std::int16_t order_mdy, order_dmy, order_ymd;
} values;

}  // namespace

const std::array<std::u16string_view, 13>& MonthNames = values.month_names;
const std::int16_t& DateOrderMDY = values.order_mdy;
const std::int16_t& DateOrderDMY = values.order_dmy;
const std::int16_t& DateOrderYMD = values.order_ymd;

void InitDateTables() {
  values = {{u"", u"January", u"February", u"March", u"April", u"May", u"June", u"July", u"August",
             u"September", u"October", u"November", u"December"},
            0,
            1,
            2};
}

}  // namespace DatePr2
