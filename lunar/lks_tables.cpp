#include "lks_tables.h"

#include "str_proc.h"

namespace Karvel_Sorand {

namespace {

struct {
  std::int16_t met_cycle_count;
  std::int32_t gmet2_start_jdn, great_cycle_days, min_lks_jdn, max_lks_jdn, ce_start_jdn;
  std::u16string met_cycle_types, year_types_of_a, year_types_of_b, year_types_of_c;
  std::vector<std::int32_t> met_cycle_start;
} values;

std::u16string BuildMetCycleTypes() {
  // The one C takes a month out of the great cycle.
  const std::u16string aba = u"ABA";
  const std::u16string block16 = aba + aba + aba + u"A" + aba + aba;
  const std::u16string block64 = block16 + block16 + block16 + block16;
  const std::u16string block21 = block16 + aba + u"C" + u"A";
  return block64 + block64 + block64 + block21 + block64 + block64;
}

std::int16_t CycleDays(const std::u16string& year_types) {
  std::int32_t days = 0;
  for (const char16_t letter : {u'A', u'B', u'C'}) {
    days += YearDays(letter) * StrProc::CountOccurrences(year_types, {&letter, 1});
  }
  return static_cast<std::int16_t>(days);
}

}  // namespace

const std::int16_t& MetCycleCount = values.met_cycle_count;
const std::int32_t& Gmet2StartJdn = values.gmet2_start_jdn;
const std::int32_t& GreatCycleDays = values.great_cycle_days;
const std::int32_t& MinLksJdn = values.min_lks_jdn;
const std::int32_t& MaxLksJdn = values.max_lks_jdn;
const std::int32_t& CeStartJdn = values.ce_start_jdn;
const std::u16string& MetCycleTypes = values.met_cycle_types;
const std::u16string& YearTypesOfA = values.year_types_of_a;
const std::u16string& YearTypesOfB = values.year_types_of_b;
const std::u16string& YearTypesOfC = values.year_types_of_c;
const std::vector<std::int32_t>& MetCycleStart = values.met_cycle_start;

void InitLksTables() {
  values.gmet2_start_jdn = 2373737;
  values.min_lks_jdn = 7333;
  values.max_lks_jdn = 4740140;
  values.ce_start_jdn = 1721426;

  values.met_cycle_types = BuildMetCycleTypes();
  values.met_cycle_count = static_cast<std::int16_t>(values.met_cycle_types.size());
  values.year_types_of_a = u"BACCBACABACCBACAAAC";
  values.year_types_of_b = u"AACCBACABACCBACAAAC";  // year 1 is a day shorter than in A
  values.year_types_of_c = u"BACCBACABACCBACAAAA";  // year 19 is a month shorter than in A

  const std::int16_t days_of_a = CycleDays(values.year_types_of_a);
  const std::int16_t days_of_b = CycleDays(values.year_types_of_b);
  const std::int16_t days_of_c = CycleDays(values.year_types_of_c);
  values.met_cycle_start.assign({0, 0});  // the unused entry 0, and cycle 1
  for (const char16_t type : values.met_cycle_types) {
    const std::int16_t days = type == u'A' ? days_of_a : type == u'B' ? days_of_b : days_of_c;
    values.met_cycle_start.push_back(values.met_cycle_start.back() + days);
  }
  values.great_cycle_days = values.met_cycle_start.back();
}

const std::u16string& YearTypesOf(std::u16string_view met_type) {
  return met_type == u"A" ? YearTypesOfA : met_type == u"B" ? YearTypesOfB : YearTypesOfC;
}

std::int32_t YearDays(char16_t letter) {
  switch (letter) {
    case u'A':
      return 354;
    case u'B':
      return 355;
    case u'C':
      return 384;
    default:
      return 0;
  }
}

}  // namespace Karvel_Sorand
