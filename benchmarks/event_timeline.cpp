// How the timeline of events grows with the number of events in the fifteen days that it covers.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "foundation/iso8601.hpp"
#include "timelines/event_entries.hpp"

namespace {

constexpr int days = 15;
constexpr const char* now = "2026-11-21T08:00:00Z";

/// A container with that many events, evenly on the days, at all times of the day.
class Container {
 public:
  explicit Container(std::int64_t events)
      : folder_(std::filesystem::temp_directory_path() / ("mirune-event-timeline-" + std::to_string(events))) {
    std::filesystem::create_directories(folder_);
    std::ofstream file(folder_ / "events.json");
    for (int day = 0; day < days; ++day) {
      file << (day == 0 ? "{" : ",") << '"' << keyOf(day) << "\":[";
      for (std::int64_t i = day; i < events; i += days) file << (i == day ? "" : ",") << eventOf(i);
      file << ']';
    }
    file << '}';
    if (!file) throw std::runtime_error("the container cannot be written");
  }
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;
  ~Container() { std::filesystem::remove_all(folder_); }

  const std::filesystem::path& folder() const { return folder_; }

 private:
  static std::string keyOf(int day) {
    const foundation::Date date = *foundation::parseMoment(now) + std::chrono::days(day);
    return foundation::dayKey(date, foundation::TimeZone());
  }

  static std::string eventOf(std::int64_t number) {
    const auto minute = static_cast<int>(number * 7919 % 1380);
    char text[400] = {};
    std::snprintf(text, sizeof text,
                  R"({"type":3,"id":"AAAAAAAA-0000-4000-8000-%012lld","title":"Meeting number %lld","isOn":false,)"
                  R"("calid":"work","starttime":"2026-11-21T%02d:%02d:00Z","endtime":"2026-11-21T%02d:%02d:00Z",)"
                  R"("allday":false,"colorHex":"#5B8DC9"})",
                  static_cast<long long>(number), static_cast<long long>(number), minute / 60, minute % 60,
                  (minute + 45) / 60, (minute + 45) % 60);
    return text;
  }

  std::filesystem::path folder_;
};

void eventTimeline(benchmark::State& state) {
  const Container container(state.range(0));
  uikit::Platform platform;
  platform.now = *foundation::parseMoment(now);
  platform.files = foundation::FileManager(container.folder());
  platform.log = [](std::string_view) {};
  std::size_t entries = 0;
  for (auto _ : state) {
    const auto timeline = mirune::eventEntries(platform);
    entries = timeline.size();
    benchmark::DoNotOptimize(timeline);
  }
  state.SetComplexityN(state.range(0));
  state.counters["entries"] = static_cast<double>(entries);
  state.counters["per event"] = benchmark::Counter(
      static_cast<double>(state.range(0)), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

BENCHMARK(eventTimeline)->RangeMultiplier(10)->Range(100, 100'000)->Unit(benchmark::kMillisecond)->Complexity();

}  // namespace
