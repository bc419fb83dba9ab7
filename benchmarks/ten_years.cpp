// The timelines of all kinds out of ten years of a planner, and beside them the decoding of its files alone, each once.

#include <benchmark/benchmark.h>

#include <filesystem>

#include "foundation/file_manager.hpp"
#include "planner_files.hpp"
#include "shared/daily_mood.hpp"
#include "shared/group_data_manager.hpp"
#include "shared/item_files.hpp"
#include "timelines/providers.hpp"

namespace {

/// A folder with the files.
class Container {
 public:
  Container() { benchmarks::writeTenYears(folder_); }
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;
  ~Container() { std::filesystem::remove_all(folder_); }

  uikit::Platform platform() const {
    uikit::Platform platform;
    platform.now = benchmarks::readingMoment();
    platform.files = foundation::FileManager(folder_);
    platform.log = [](std::string_view) {};
    return platform;
  }

 private:
  std::filesystem::path folder_ = std::filesystem::temp_directory_path() / "mirune-ten-years";
};

void decodeOnce(benchmark::State& state) {
  const Container container;
  const uikit::Platform platform = container.platform();
  for (auto _ : state) {
    for (const char* name : {"tasks", "pendingtasks", "habits", "events"}) {
      auto bytes = mirune::GroupDataManager::read(platform, name).value();
      benchmark::DoNotOptimize(foundation::decodeJSON<mirune::ItemFile>(std::move(bytes)).value());
    }
    benchmark::DoNotOptimize(mirune::readMoodFile(platform));
  }
}

template <class... Providers>
void ask(const uikit::Platform& platform) {
  (benchmark::DoNotOptimize(Providers::entries(platform)), ...);
}

template <class... Providers>
void timelines(benchmark::State& state) {
  const Container container;
  const uikit::Platform platform = container.platform();
  for (auto _ : state) ask<Providers...>(platform);
}

void timelinesOfAllKinds(benchmark::State& state) {
  using namespace mirune;
  // The moods have two widgets.
  timelines<TaskProvider, HabitProvider, EventProvider, TaskAndEventProvider, CalendarProvider, MoodProvider,
            MoodProvider, Provider>(state);
}

BENCHMARK(decodeOnce)->Unit(benchmark::kMillisecond);
BENCHMARK(timelinesOfAllKinds)->Unit(benchmark::kMillisecond);
BENCHMARK(timelines<mirune::TaskProvider>)->Unit(benchmark::kMillisecond);
BENCHMARK(timelines<mirune::HabitProvider>)->Unit(benchmark::kMillisecond);
BENCHMARK(timelines<mirune::EventProvider>)->Unit(benchmark::kMillisecond);
BENCHMARK(timelines<mirune::TaskAndEventProvider>)->Unit(benchmark::kMillisecond);
BENCHMARK(timelines<mirune::MoodProvider>)->Unit(benchmark::kMillisecond);

}  // namespace
