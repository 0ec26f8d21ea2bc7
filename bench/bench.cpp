// How long the calendars take for a day.
#include <benchmark/benchmark.h>

#include "euro_date.h"
#include "lks_date.h"

using namespace Karvel_Sorand;

static void JdnToLks(benchmark::State& state) {
  InitLksTables();
  LksDate date{};
  std::int32_t jdn = MinLksJdn;
  for (auto _ : state) {
    benchmark::DoNotOptimize(JdnToLksDate(jdn, date, true));
    jdn = jdn < MaxLksJdn - 997 ? jdn + 997 : MinLksJdn;
  }
}
BENCHMARK(JdnToLks);

static void CheckLks(benchmark::State& state) {
  InitLksTables();
  LksDate date{};
  JdnToLksDate(static_cast<std::int32_t>(state.range(0)), date, true);
  for (auto _ : state) benchmark::DoNotOptimize(CheckLksDate(date));
}
BENCHMARK(CheckLks)->Arg(7333)->Arg(2461367)->Arg(4740140);

static void EuroThereAndBack(benchmark::State& state) {
  EuroDate date{2026, 11, 22, GregorianCalendar, 0, 0};
  for (auto _ : state) {
    euro_date_to_jdn(&date);
    ++date.jdn;
    jdn_to_euro_date(&date);
  }
  benchmark::DoNotOptimize(date);
}
BENCHMARK(EuroThereAndBack);
