#include "host/live/home_screen.hpp"

#include <algorithm>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <set>

#include "foundation/iso8601.hpp"
#include "host/live/extension_messages.hpp"
#include "schedule/next_midnight.hpp"
#include "schedule/retry_pause.hpp"

namespace host {

namespace asio = boost::asio;
using foundation::Date;
using foundation::JSON;

HomeScreen::HomeScreen(const asio::any_io_executor& executor, Options options, home::HomeStore& store)
    : executor_(executor),
      options_(std::move(options)),
      store_(store),
      extension_(executor, options_.extension),
      timer_(executor, options_.clock),
      idle_(executor),
      changes_(executor),
      answers_(executor) {}

asio::awaitable<std::expected<void, messages::Failure>> HomeScreen::prepare() {
  auto question = envelope(messages::DescribeCatalogue{}, options_.clock.now());
  const auto answer = co_await ask(std::move(question));
  if (!answer) co_return std::unexpected(messages::Failure{.message = answer.error()});
  if (const auto* failure = std::get_if<messages::Failure>(&*answer)) co_return std::unexpected(*failure);
  const auto* catalogue = std::get_if<messages::Catalogue>(&*answer);
  if (catalogue == nullptr) co_return std::unexpected(messages::Failure{.message = messageOf(*answer)});
  catalogue_ = *catalogue;
  co_return std::expected<void, messages::Failure>();
}

void HomeScreen::start() {
  files_ = ContainerFiles::of(options_.world.container, {});
  readPlacedWidgets();
  asio::co_spawn(executor_, watchMoments(), asio::detached);
  asio::co_spawn(executor_, watchContainer(), asio::detached);
  if (options_.followsSystemZone) asio::co_spawn(executor_, watchZone(), asio::detached);
  update();
}

void HomeScreen::reload() {
  ++look_;
  readPlacedWidgets();
  happened(OutsideEvent::files);
}

void HomeScreen::readPlacedWidgets() {
  std::vector<ShownWidget> widgets;
  for (const home::PlacedWidget& placed : store_.widgets()) {
    // What another version of the extension knows stays in the store.
    if (description(placed.kind) == nullptr) continue;
    ShownWidget* known = find(placed.id);
    ShownWidget widget = known != nullptr ? std::move(*known) : ShownWidget();
    widget.placed = placed;
    widgets.push_back(std::move(widget));
  }
  widgets_ = std::move(widgets);
  std::set<std::string> used;
  for (const ShownWidget& widget : widgets_) used.insert(widget.placed.kind);
  std::erase_if(kinds_, [&](const auto& kind) { return !used.contains(kind.first); });
  for (const std::string& kind : used) kinds_.try_emplace(kind);
}

void HomeScreen::happened(OutsideEvent event) {
  for (auto& [kind, timeline] : kinds_) timeline.state = host::happened(std::move(timeline.state), event);
  update();
}

void HomeScreen::update() {
  const Date now = options_.clock.now();
  updateKinds(now, nextMidnight(calendar(), now));
  updateWidgets(now);
  setTimer();
}

void HomeScreen::updateKinds(Date now, Date midnight) {
  for (auto& [kind, timeline] : kinds_) {
    timeline.state = clockRead(std::move(timeline.state), now, midnight);
    timeline.decision = decide(timeline.state, now);
    if (!timeline.decision.asksNow) continue;
    timeline.state = requestSent(std::move(timeline.state), now);
    timeline.lastRequest = now;
    timeline.decision = decide(timeline.state, now);
    asio::co_spawn(executor_, requestTimeline(kind), asio::detached);
  }
}

void HomeScreen::updateWidgets(Date now) {
  for (ShownWidget& widget : widgets_) {
    if (widget.retryAt) widget.retryAt = retryMoment(*widget.retryAt, widget.failures, now);
    if (widget.retryAt && *widget.retryAt <= now) widget.retryAt.reset();
    const KindTimeline& kind = kinds_.at(widget.placed.kind);
    const auto& entries = kind.timeline.entries;
    if (kind.number == 0 || entries.empty()) continue;
    // Where a timeline has no entries, what was shown stays; before that, it is the placeholder.
    const ShownEntry before = widget.drawn && widget.drawn->key.timeline == kind.number
                                  ? ShownEntry{.index = widget.drawn->key.entry, .isEarly = widget.drawn->key.isEarly}
                                  : ShownEntry();
    const ShownEntry shown = kind.decision.shown.value_or(before);
    if (shown.index >= entries.size()) continue;
    const PictureKey key{.timeline = kind.number, .entry = shown.index, .isEarly = shown.isEarly, .look = look_};
    const bool isDrawn = widget.drawn && widget.drawn->key == key;
    const bool isWaiting = widget.drawing || widget.retryAt;
    if (isDrawn || isWaiting) continue;
    widget.drawing = key;
    JSON entry = kind.timeline.wholeEntry(shown.index);
    const auto date = foundation::parseMoment(entry.value("date", "")).value_or(now);
    asio::co_spawn(executor_, drawAnew(widget.placed.id, key, std::move(entry), date), asio::detached);
  }
}

void HomeScreen::setTimer() {
  std::optional<Date> wake;
  const auto consider = [&](std::optional<Date> moment) {
    if (moment && (!wake || *moment < *wake)) wake = moment;
  };
  for (const auto& [kind, timeline] : kinds_) consider(timeline.decision.wake);
  for (const ShownWidget& widget : widgets_) {
    if (!widget.drawing) consider(widget.retryAt);
  }
  timer_.set(wake);
}

messages::Envelope HomeScreen::envelope(messages::Request request, Date moment, const std::string& family) const {
  messages::World world = options_.world;
  world.now = moment;
  // The lock screen is drawn light on dark; what stands on the home screen follows the planner's theme by itself.
  if (family.starts_with("accessory")) world.appearance = "dark";
  return {.world = std::move(world), .request = std::move(request)};
}

// Envelopes are made by functions and named before they are awaited: what a coroutine makes within the expression that
// it waits in, this compiler destroys twice.
asio::awaitable<ExtensionWorker::Answer> HomeScreen::ask(messages::Envelope question,
                                                         ExtensionWorker::Urgency urgency) {
  auto answer = co_await extension_.ask(std::move(question), urgency);
  letExtensionGoWhenIdle();
  co_return answer;
}

asio::awaitable<void> HomeScreen::requestTimeline(std::string kind) {
  const Date asked = options_.clock.now();
  auto question = envelope(providerRequest(messages::ProviderOperation::timeline, kind), asked);
  auto answer = co_await ask(std::move(question));
  if (answer && std::holds_alternative<messages::Timeline>(*answer) && kinds_.contains(kind) &&
      std::get<messages::Timeline>(*answer).entries.empty() && kinds_.at(kind).number == 0) {
    // There is nothing to show yet: what the kind shows before it has data.
    question = envelope(providerRequest(messages::ProviderOperation::placeholder, kind), asked);
    auto placeholder = co_await ask(std::move(question));
    if (placeholder && std::holds_alternative<messages::Timeline>(*placeholder)) {
      std::get<messages::Timeline>(*answer).entries = std::get<messages::Timeline>(*placeholder).entries;
    }
  }
  const auto found = kinds_.find(kind);
  if (found == kinds_.end()) co_return;
  KindTimeline& known = found->second;
  const Date now = options_.clock.now();
  auto* timeline = answer ? std::get_if<messages::Timeline>(&*answer) : nullptr;
  const auto dates = timeline != nullptr ? EntryDates::of(*timeline) : std::nullopt;
  if (dates) {
    const Date midnight = nextMidnight(calendar(), asked);
    known.state =
        answered(std::move(known.state),
                 {.dates = *dates, .policy = reloadPolicy(timeline->policy), .asked = asked, .midnight = midnight});
    if (!timeline->entries.empty()) {
      known.timeline = std::move(*timeline);
      known.number = ++timelines_;
    }
  } else {
    const std::string message = !answer               ? answer.error()
                                : timeline == nullptr ? messageOf(*answer)
                                                      : "the widget extension sent an entry without a date";
    known.state = failed(std::move(known.state), now);
    known.lastFailure = WidgetFailure{.message = message, .since = now};
    changes_.change();
  }
  answers_.change();
  update();
}

foundation::Calendar HomeScreen::calendar() const {
  return foundation::Calendar::iso8601(
      foundation::TimeZone::named(options_.world.timeZone).value_or(foundation::TimeZone()));
}

const messages::WidgetDescription* HomeScreen::description(const std::string& kind) const {
  const auto found = std::ranges::find(catalogue_.widgets, kind, &messages::WidgetDescription::kind);
  return found == catalogue_.widgets.end() ? nullptr : &*found;
}

ShownWidget* HomeScreen::find(std::int64_t id) {
  const auto found = std::ranges::find(widgets_, id, [](const ShownWidget& widget) { return widget.placed.id; });
  return found == widgets_.end() ? nullptr : &*found;
}

}  // namespace host
