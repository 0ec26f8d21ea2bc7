#include <gtest/gtest.h>

#include "decimal.h"
#include "str_proc.h"

using namespace StrProc;

TEST(Text, CharactersAndNumbers) {
  EXPECT_EQ(FirstNotInSet(u"abc", 3, u""), 1);
  EXPECT_EQ(FirstNotInSet(u"12a4", 0, Digits), 3);
  EXPECT_EQ(FirstNotInSet(u"a2a4", 2, Digits), 3);
  EXPECT_EQ(CountOccurrences(u"AAA", u"AA"), 1);
  EXPECT_EQ(DecimalValue(u"12a4"), 12);
  EXPECT_EQ(DecimalValue(u"18446744073709551621"), 2147483647);  // 5 in 64 bits
  EXPECT_EQ(DecimalValue(u"-2147483649"), -2147483647 - 1);
}
