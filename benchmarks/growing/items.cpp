// How a request for a timeline, and a picture, grow with what the planner has: the tasks of fifteen days, the events of
// one.

#include <benchmark/benchmark.h>

#include "measuring/extension.hpp"
#include "measuring/sample.hpp"
#include "planner_folder.hpp"

namespace growing {
namespace {

constexpr int timelineDays = 15;

PlannerFolder::Contents tasksInContainer(int items) {
  return {.tasks = {.items = items, .days = timelineDays}};
}

PlannerFolder::Contents eventsInOneDay(int items) {
  return {.events = {.items = items}};
}

using Contents = PlannerFolder::Contents (*)(int items);

void timeline(benchmark::State& state, const char* kind, Contents contents) {
  const PlannerFolder folder(contents(static_cast<int>(state.range(0))));
  measuring::Extension extension(measuring::worldWith(folder.path()));
  for (auto _ : state) benchmark::DoNotOptimize(extension.timeline(kind, measuring::morning()));
}

void picture(benchmark::State& state, const char* kind, Contents contents) {
  const PlannerFolder folder(contents(static_cast<int>(state.range(0))));
  measuring::Extension extension(measuring::worldWith(folder.path()));
  const auto entry = extension.timeline(kind, measuring::morning()).wholeEntry(0);
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        extension.picture(kind, "systemMedium", entry, messages::PictureFormat::png, measuring::morning()));
  }
}

void sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->RangeMultiplier(10)->Range(10, 10'000)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(timeline, tasks, "tasks", tasksInContainer)->Apply(sizes);
BENCHMARK_CAPTURE(picture, tasks, "tasks", tasksInContainer)->Apply(sizes);
BENCHMARK_CAPTURE(timeline, events, "events", eventsInOneDay)->Apply(sizes);
BENCHMARK_CAPTURE(picture, events, "events", eventsInOneDay)->Apply(sizes);

}  // namespace
}  // namespace growing
