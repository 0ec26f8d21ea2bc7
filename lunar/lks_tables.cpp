#include "lks_internal.h"
#include "str_proc.h"

namespace Karvel_Sorand {

namespace {

struct {
  std::int16_t met_cycle_count;
  std::int32_t gmet2_start_jdn, great_cycle_days, min_lks_jdn, max_lks_jdn, ce_start_jdn;
  std::u16string met_cycle_types;
  CycleYears years_of_a, years_of_b, years_of_c;
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

CycleYears BuildYears(const std::u16string& types) {
  CycleYears years{types, CycleDays(types), {0, 0}};  // the unused entry 0, and year 1
  for (const char16_t letter : types) years.start.push_back(years.start.back() + YearDays(letter));
  return years;
}

}  // namespace

const std::int16_t& MetCycleCount = values.met_cycle_count;
const std::int32_t& Gmet2StartJdn = values.gmet2_start_jdn;
const std::int32_t& GreatCycleDays = values.great_cycle_days;
const std::int32_t& MinLksJdn = values.min_lks_jdn;
const std::int32_t& MaxLksJdn = values.max_lks_jdn;
const std::int32_t& CeStartJdn = values.ce_start_jdn;
const std::u16string& MetCycleTypes = values.met_cycle_types;
const std::u16string& YearTypesOfA = values.years_of_a.types;
const std::u16string& YearTypesOfB = values.years_of_b.types;
const std::u16string& YearTypesOfC = values.years_of_c.types;
const std::vector<std::int32_t>& MetCycleStart = values.met_cycle_start;

void InitLksTables() {
  values.gmet2_start_jdn = 2373737;
  values.min_lks_jdn = 7333;
  values.max_lks_jdn = 4740140;
  values.ce_start_jdn = 1721426;

  values.met_cycle_types = BuildMetCycleTypes();
  values.met_cycle_count = static_cast<std::int16_t>(values.met_cycle_types.size());
  values.years_of_a = BuildYears(u"BACCBACABACCBACAAAC");
  values.years_of_b = BuildYears(u"AACCBACABACCBACAAAC");  // year 1 is a day shorter than in A
  values.years_of_c = BuildYears(u"BACCBACABACCBACAAAA");  // year 19 is a month shorter than in A

  std::vector<std::int32_t>& start = values.met_cycle_start;
  start.assign({0, 0});  // the unused entry 0, and cycle 1
  for (const char16_t type : MetCycleTypes)
    start.push_back(start.back() + YearsOf({&type, 1}).days);
  values.great_cycle_days = start.back();
}

const CycleYears& YearsOf(std::u16string_view met_type) {
  const char16_t letter = met_type.size() == 1 ? met_type.front() : u'C';
  if (letter == u'A') return values.years_of_a;
  return letter == u'B' ? values.years_of_b : values.years_of_c;
}

std::int32_t YearDays(char16_t letter) {
  return letter == u'A' ? 354 : letter == u'B' ? 355 : 384;
}

}  // namespace Karvel_Sorand
