// Whole numbers as plain decimal text: "-" ahead of a negative value, no blanks, no zero filling,
// no separators.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace StrProc {

// `number` as text.
std::u16string Decimal(std::int32_t number);

// The number that `text` begins with: an optional "-" and the digits behind it, up to the first
// other character. 0 if there is no digit. A number outside 32 bits gives the nearest limit.
std::int32_t DecimalValue(std::u16string_view text);

}  // namespace StrProc
