// Character tests and counting. Texts are sequences of 16-bit code units; a length or a position
// counts those units, positions begin at 1, and characters compare by code, never by locale.
// Nothing here keeps state and nothing here fails.
#pragma once

#include <cstdint>
#include <string_view>

namespace StrProc {

inline constexpr std::u16string_view Digits = u"0123456789";

// The position of the first character of `text`, at or after `start`, that is not in `set`;
// 0 if there is none, also when `text` is empty or `start` lies beyond its end. An empty `set`
// gives 1 for any text that is not empty, whatever `start` is. A `start` below 1 is taken as 1; the
// tests below use no other.
std::int32_t FirstNotInSet(std::u16string_view text, std::int32_t start, std::u16string_view set);

// Whether `text` has no character outside `Digits`. True for the empty text.
bool IsAllDigits(std::u16string_view text);

// Whether `text` has no character outside `Digits` and `extra`. It says nothing of how many of the
// extra characters there are or where they stand. True for the empty text.
bool IsAllDigitsOr(std::u16string_view text, std::u16string_view extra);

// The number of times `pattern` stands in `text`, counted from the left without overlap: "AAA"
// holds "AA" once. 0 if either is empty.
std::int32_t CountOccurrences(std::u16string_view text, std::u16string_view pattern);

}  // namespace StrProc
