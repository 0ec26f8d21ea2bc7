// How long the calendars take for a day drawn at random from the whole lunar calendar, and how many
// times as long that is as the standard library takes for a Gregorian date there and back.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <map>
#include <random>

#include "euro_date.h"
#include "lks_internal.h"

using namespace Karvel_Sorand;

namespace {

constexpr std::int32_t UnixEpochJdn = 2440588;
constexpr const char* Baseline = "std::chrono, there and back";

// After the usual table: the best time of each benchmark and, if the baseline has run, how many
// times that of the baseline it is.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const double time = run.GetAdjustedCPUTime();
      const auto [entry, is_first] = best.emplace(run.run_name.function_name, time);
      entry->second = std::min(entry->second, time);
    }
  }

  void Finalize() override {
    const auto baseline = best.find(Baseline);
    for (const auto& [name, time] : best) {
      std::printf("%-32s %6.1f ns", name.c_str(), time);
      if (baseline != best.end()) std::printf(" %6.1f times", time / baseline->second);
      std::printf("\n");
    }
  }

 private:
  std::map<std::string, double> best;  // nanoseconds by name
};

template <typename Days, typename Step>
void Register(const char* name, Days& days, Step step) {
  benchmark::RegisterBenchmark(name, [&days, step](benchmark::State& state) {
    while (state.KeepRunningBatch(static_cast<std::int64_t>(days.size()))) {
      for (auto& day : days) benchmark::DoNotOptimize(step(day));
    }
  });
}

}  // namespace

int main(int argc, char** argv) {
  InitLksTables();
  std::mt19937 random;
  std::uniform_int_distribution<std::int32_t> any_day(MinLksJdn, MaxLksJdn);
  std::vector<std::int32_t> jdns(20000);
  std::vector<LksDate> dates(jdns.size());
  for (std::size_t i = 0; i < jdns.size(); ++i) {
    jdns[i] = any_day(random);
    JdnToLksDate(jdns[i], dates[i], true);
  }

  Register(Baseline, jdns, [](std::int32_t jdn) {
    const std::chrono::sys_days day{std::chrono::days(jdn - UnixEpochJdn)};
    std::chrono::year_month_day date = day;
    benchmark::DoNotOptimize(date);
    return std::chrono::sys_days(date);
  });
  Register("Gregorian date, there and back", jdns, [](std::int32_t jdn) {
    EuroDate date{0, 0, 0, GregorianCalendar, jdn, 0};
    jdn_to_euro_date(&date);
    euro_date_to_jdn(&date);
    return date.jdn;
  });
  LksDate again{};
  Register("JdnToLksFields", jdns,
           [&](std::int32_t jdn) { return JdnToLksFields(jdn, again, true); });
  Register("JdnToLksDate", jdns, [&](std::int32_t jdn) { return JdnToLksDate(jdn, again, true); });
  Register("JdnToLksDate into a fresh record", jdns, [](std::int32_t jdn) {
    LksDate fresh{};
    return JdnToLksDate(jdn, fresh, true);
  });
  Register("LksDateToJdn", dates, [](LksDate& date) { return LksDateToJdn(date); });
  Register("CheckLksDate", dates, [](LksDate& date) { return CheckLksDate(date); });

  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
