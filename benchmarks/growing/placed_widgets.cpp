// How drawing a home screen grows with the widgets on it: the processor time of the host and of its extension, from the
// start until each widget is drawn.

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <algorithm>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/io_context.hpp>

#include "home/home_file.hpp"
#include "host/live/home_screen.hpp"
#include "host/states/scratch_folder.hpp"
#include "measuring/paths.hpp"
#include "measuring/sample.hpp"

namespace growing {
namespace {

namespace asio = boost::asio;

/// Of this process and of the children that have ended, in seconds.
double processorTime() {
  double seconds = 0;
  for (const auto whose : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
    rusage usage = {};
    getrusage(whose, &usage);
    for (const timeval& part : {usage.ru_utime, usage.ru_stime}) {
      seconds += static_cast<double>(part.tv_sec) + static_cast<double>(part.tv_usec) * 1e-6;
    }
  }
  return seconds;
}

/// Places that many widgets of tasks, and nothing else.
void writeHomeFile(const std::filesystem::path& file, int count) {
  home::HomeStore usual(file);
  while (!usual.widgets().empty()) std::ignore = usual.remove(usual.widgets().front().id);
  auto opened = home::openHomeFile(file);
  for (int i = 0; i < count; ++i) {
    home::insertWidget(opened.database, {.kind = "Mirune_Widgets2", .family = "systemSmall", .position = i});
  }
}

bool allDrawn(const host::HomeScreen& screen, int count) {
  const auto state = screen.state();
  const auto& widgets = state.at("widgets");
  return widgets.size() == static_cast<std::size_t>(count) &&
         std::ranges::none_of(widgets, [](const auto& widget) { return widget.at("picture").is_null(); });
}

asio::awaitable<void> drawEach(asio::io_context& context, host::HomeScreen& screen, int count) {
  if (const auto prepared = co_await screen.prepare(); prepared) {
    const auto before = screen.changes().version();
    screen.start();
    const auto after = before + static_cast<std::uint64_t>(count);  // each widget's first picture is a change
    for (auto version = before; version < after;) version = co_await screen.changes().after(version);
  }
  context.stop();
}

void homeScreen(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  const host::ScratchFolder folder;
  const auto container = folder.path() / "container";
  const auto file = folder.path() / "home.db";
  measuring::writeSampleContainer(container);
  writeHomeFile(file, count);
  for (auto _ : state) {
    const double before = processorTime();
    {
      asio::io_context context(1);
      home::HomeStore store(file);
      host::HomeScreen screen(context.get_executor(),
                              {.world = measuring::worldWith(container),
                               .clock = host::LiveClock(measuring::morning(), 1),
                               .extension = {.program = measuring::extensionProgram()}},
                              store);
      asio::co_spawn(context, drawEach(context, screen, count), asio::detached);
      context.run();
      if (!allDrawn(screen, count)) state.SkipWithError("not every widget is drawn");
    }
    state.SetIterationTime(processorTime() - before);
  }
}

BENCHMARK(homeScreen)->RangeMultiplier(10)->Range(1, 1000)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace growing
