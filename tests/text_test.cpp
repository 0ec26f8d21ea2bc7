#include <gtest/gtest.h>

#include "decimal.h"
#include "str_proc.h"

using namespace StrProc;

TEST(Text, TestsAndCounts) {
  EXPECT_EQ(FirstNotInSet(u"", 5, u""), 0);
  EXPECT_EQ(FirstNotInSet(u"abc", 3, u""), 1);
  const std::pair<std::int32_t, std::int32_t> found[] = {{-7, 3}, {0, 3}, {3, 3}, {4, 0}, {9, 0}};
  for (const auto& [start, at] : found) EXPECT_EQ(FirstNotInSet(u"12a4", start, Digits), at);
  EXPECT_TRUE(IsAllDigits(u"") && IsAllDigits(u"301") && IsAllDigitsOr(u"5--", u"-"));
  EXPECT_FALSE(IsAllDigits(u"-5") || IsAllDigits(u" 5") || IsAllDigitsOr(u"1.5", u"-"));
  EXPECT_EQ(CountOccurrences(u"AAA", u"AA"), 1);
  EXPECT_EQ(CountOccurrences(u"ABA", u"A"), 2);
  EXPECT_EQ(CountOccurrences(u"A", u"AA") + CountOccurrences(u"", u"A"), 0);
  EXPECT_EQ(CountOccurrences(u"A", u""), 0);
}

TEST(Text, Decimals) {
  const std::pair<std::u16string_view, std::int32_t> rows[] = {
      {u"-", 0}, {u"012", 12}, {u"15 x", 15}, {u"-44", -44}, {u"99999999999999999", 2147483647}};
  for (const auto& [text, value] : rows) EXPECT_EQ(DecimalValue(text), value);
  for (const std::int32_t n : {0, -7, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(DecimalValue(Decimal(n)), n);
  }
}
