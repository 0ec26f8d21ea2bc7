// Whole numbers as plain decimal text: "-" before a negative value, no spaces, no leading zeros, no
// separators.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace StrProc {

// `number` as text.
std::u16string Decimal(std::int32_t number);

// The number that `text` begins with: an optional "-" and the digits after it, up to the first
// other character. 0 if there is no digit; the nearest limit if the number is outside 32 bits.
std::int32_t DecimalValue(std::u16string_view text);

}  // namespace StrProc
