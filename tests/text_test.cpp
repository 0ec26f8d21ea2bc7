#include <gtest/gtest.h>

#include "decimal.h"
#include "str_proc.h"

using namespace StrProc;

TEST(Text, TestsAndCounts) {
  const std::pair<std::int32_t, std::int32_t> found[] = {{-7, 3}, {0, 3}, {3, 3}, {4, 0}, {9, 0}};
  for (const auto& [start, at] : found) EXPECT_EQ(FirstNotInSet(u"12a4", start, Digits), at);
  EXPECT_TRUE(FirstNotInSet(u"", 5, u"") == 0 && FirstNotInSet(u"abc", 3, u"") == 1);
  EXPECT_TRUE(IsAllDigits(u"") && IsAllDigits(u"301") && IsAllDigitsOr(u"5--", u"-"));
  EXPECT_FALSE(IsAllDigits(u"-5") || IsAllDigits(u" 5") || IsAllDigitsOr(u"1.5", u"-"));
  EXPECT_TRUE(CountOccurrences(u"AAA", u"AA") == 1 && CountOccurrences(u"ABA", u"A") == 2);
  EXPECT_EQ(CountOccurrences(u"A", u"AA") + CountOccurrences(u"", u"A"), 0);
  for (const std::int32_t n : {0, -7, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(DecimalValue(Decimal(n)), n);
  }
}
