// How the processor time of a home screen grows with the days for which it is up: every timeline that is asked for and
// every picture that comes due, at the moments at which the host would wake for them.

#include <benchmark/benchmark.h>

#include <vector>

#include "foundation/calendar.hpp"
#include "measuring/extension.hpp"
#include "measuring/sample.hpp"
#include "planner_folder.hpp"
#include "schedule/decision.hpp"
#include "schedule/next_midnight.hpp"

namespace growing {
namespace {

using foundation::Date;

constexpr int longest = 100;  // days

/// One widget of a home screen.
struct Widget {
  std::string kind = {};
  std::string family = {};
  messages::Timeline timeline = {};
  host::TimelineState state = {};
  host::Decision decision = {};
};

/// A home screen with a widget of each kind, whose time passes as fast as its work is done.
class HomeScreen {
 public:
  explicit HomeScreen(const std::filesystem::path& container) : extension_(measuring::worldWith(container)) {
    for (const auto& described : extension_.catalogue().widgets) {
      widgets_.push_back({.kind = described.kind, .family = described.families.front()});
    }
  }

  void liveThrough(int days) {
    const Date end = measuring::morning() + std::chrono::days(days);
    for (std::optional<Date> now = measuring::morning(); now && *now < end; now = nextWake()) wakeAt(*now);
  }

  int pictures() const { return pictures_; }
  int timelines() const { return timelines_; }

 private:
  void wakeAt(Date now) {
    const Date midnight = host::nextMidnight(calendar_, now);
    for (Widget& widget : widgets_) {
      const auto shown = widget.decision.shown;
      widget.state = host::clockRead(std::move(widget.state), now, midnight);
      widget.decision = host::decide(widget.state, now);
      const bool isAsked = widget.decision.asksNow;
      if (isAsked) ask(widget, now, midnight);
      if (isAsked || widget.decision.shown != shown) draw(widget, now);
    }
  }

  void ask(Widget& widget, Date now, Date midnight) {
    widget.state = host::requestSent(std::move(widget.state), now);
    widget.timeline = extension_.timeline(widget.kind, now);
    widget.state = host::answered(std::move(widget.state), {.dates = host::EntryDates::of(widget.timeline).value(),
                                                            .policy = host::reloadPolicy(widget.timeline.policy),
                                                            .asked = now,
                                                            .midnight = midnight});
    widget.decision = host::decide(widget.state, now);
    ++timelines_;
  }

  void draw(const Widget& widget, Date now) {
    const auto entry = widget.timeline.wholeEntry(widget.decision.shown.value().index);
    // As the host has it drawn where nobody looks: to see whether it looks different.
    benchmark::DoNotOptimize(extension_.picture(widget.kind, widget.family, entry, messages::PictureFormat::json, now));
    ++pictures_;
  }

  std::optional<Date> nextWake() const {
    std::vector<host::Decision> decisions;
    for (const Widget& widget : widgets_) decisions.push_back(widget.decision);
    return host::earliestWake(decisions);
  }

  measuring::Extension extension_;
  foundation::Calendar calendar_ = foundation::Calendar::iso8601(foundation::TimeZone());
  std::vector<Widget> widgets_;
  int pictures_ = 0;
  int timelines_ = 0;
};

void uptime(benchmark::State& state) {
  constexpr int itemsADay = 5;
  constexpr int days = longest + 15;  // a timeline looks so far ahead
  constexpr Amount everyDay{.items = itemsADay * days, .days = days};
  const PlannerFolder folder({.tasks = everyDay, .habits = everyDay, .events = everyDay});
  for (auto _ : state) {
    HomeScreen screen(folder.path());
    screen.liveThrough(static_cast<int>(state.range(0)));
    state.counters["pictures"] = screen.pictures();
    state.counters["timelines"] = screen.timelines();
  }
}

BENCHMARK(uptime)->RangeMultiplier(10)->Range(1, longest)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace growing
