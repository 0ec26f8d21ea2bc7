#include <gtest/gtest.h>

#include "decimal.h"
#include "str_proc.h"

using namespace StrProc;

TEST(Text, FirstNotInSet) {
  struct {
    std::u16string_view text;
    std::int32_t start;
    std::u16string_view set;
    std::int32_t position;
  } const rows[] = {
      {u"", 1, Digits, 0},     {u"", 5, u"", 0},        {u"abc", 3, u"", 1},
      {u"12a4", 0, Digits, 3}, {u"12a4", 1, Digits, 3}, {u"12a4", -7, Digits, 3},
      {u"12a4", 3, Digits, 3}, {u"12a4", 4, Digits, 0}, {u"12a4", 9, Digits, 0},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(FirstNotInSet(row.text, row.start, row.set), row.position) << row.start;
  }
}

TEST(Text, DigitTests) {
  struct {
    std::u16string_view text;
    bool digits, digits_or_minus;
  } const rows[] = {{u"", true, true},      {u"301", true, true},     {u"-5", false, true},
                    {u"-", false, true},    {u"--", false, true},     {u" 5", false, false},
                    {u"1.5", false, false}, {u"\u0663", false, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(IsAllDigits(row.text), row.digits);
    EXPECT_EQ(IsAllDigitsOr(row.text, u"-"), row.digits_or_minus);
  }
}

TEST(Text, CountOccurrencesDoNotOverlap) {
  struct {
    std::u16string_view text, pattern;
    std::int32_t count;
  } const rows[] = {{u"ABA", u"A", 2}, {u"AAA", u"AA", 1}, {u"AAAA", u"AA", 2},
                    {u"A", u"AA", 0},  {u"", u"A", 0},     {u"A", u"", 0}};
  for (const auto& row : rows) EXPECT_EQ(CountOccurrences(row.text, row.pattern), row.count);
}

TEST(Text, Decimal) {
  struct {
    std::u16string_view text;
    std::int32_t value;
  } const rows[] = {{u"-", 0},
                    {u"012", 12},
                    {u"15 x", 15},
                    {u"-44", -44},
                    {u"2147483647", 2147483647},
                    {u"2147483648", 2147483647},
                    {u"-2147483648", -2147483648},
                    {u"-99999999999999999999999", -2147483648}};
  for (const auto& row : rows) EXPECT_EQ(DecimalValue(row.text), row.value);
  for (const std::int32_t n : {0, 7, -7, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(DecimalValue(Decimal(n)), n);
  }
}
