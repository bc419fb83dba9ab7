#include "host/live/home_screen.hpp"

#include <algorithm>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <functional>
#include <iomanip>
#include <set>
#include <sstream>

#include "foundation/iso8601.hpp"
#include "host/mark_task_complete.hpp"
#include "schedule/next_midnight.hpp"

namespace host {

namespace asio = boost::asio;
using foundation::Date;
using foundation::JSON;
using messages::PictureFormat;
using Urgency = ExtensionWorker::Urgency;

namespace {

/// The pause after so many failures in a row: 1 s, 2 s, 4 s … a quarter of an hour.
std::chrono::seconds pauseAfter(int failures) {
  constexpr std::chrono::seconds longest(900);
  return failures > 9 ? longest : std::chrono::seconds(1 << std::max(0, failures - 1));
}

std::string hashOf(const std::string& bytes) {
  std::ostringstream text;
  text << std::hex << std::setw(16) << std::setfill('0') << std::hash<std::string>()(bytes);
  return text.str();
}

std::string messageOf(const messages::Reply& reply) {
  const auto* failure = std::get_if<messages::Failure>(&reply);
  return failure != nullptr ? failure->message : "the widget extension answered something else than it was asked";
}

messages::Request providerRequest(messages::ProviderOperation operation, const std::string& kind) {
  return messages::AskProvider{.operation = operation, .kind = kind};
}

home::PlacedWidget placedAs(const std::string& kind, const std::string& family) {
  return {.kind = kind, .family = family};
}

messages::Request tapRequest(const std::string& item, std::optional<Date> date) {
  return messages::PerformIntent{.intent = markTaskComplete, .parameters = {{"id", item}, {"date", JSON(date)}}};
}

JSON widgetJSON(std::int64_t id, const JSON& document) {
  return {{"id", id},
          {"picture", hashOf(document.value("drawn", JSON()).dump())},
          {"url", document.value("url", JSON())},
          {"meaning", document.value("meaning", JSON::array())}};
}

JSON momentJSON(Date moment, JSON widgets) {
  return {{"moment", moment}, {"widgets", std::move(widgets)}};
}

Refusal::Reason reasonOf(const home::StoreError& error) {
  switch (error.reason) {
    case home::StoreError::Reason::unknownWidget:
      return Refusal::Reason::unknown;
    case home::StoreError::Reason::noRoom:
      return Refusal::Reason::noRoom;
    case home::StoreError::Reason::notStored:
      break;
  }
  return Refusal::Reason::failed;
}

std::unexpected<Refusal> refused(Refusal::Reason reason, std::string message) {
  return std::unexpected(Refusal{.reason = reason, .message = std::move(message)});
}

}  // namespace

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
    if (std::ranges::find(catalogue_.widgets, placed.kind, &messages::WidgetDescription::kind) ==
        catalogue_.widgets.end()) {
      continue;
    }
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
    if (widget.retryAt && *widget.retryAt <= now) widget.retryAt.reset();
    const KindTimeline& kind = kinds_.at(widget.placed.kind);
    const auto& entries = kind.timeline.entries;
    if (kind.number == 0 || entries.empty()) continue;
    // A placeholder stands for a timeline without entries.
    const ShownEntry shown = kind.decision.shown.value_or(ShownEntry());
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

messages::Envelope HomeScreen::drawing(const home::PlacedWidget& widget, JSON entry, PictureFormat format, double scale,
                                       Date moment) const {
  messages::DrawEntry request{
      .kind = widget.kind, .family = widget.family, .entry = std::move(entry), .format = format, .scale = scale};
  return envelope(std::move(request), moment, widget.family);
}

// Envelopes are made by functions and named before they are awaited: what a coroutine makes within the expression that
// it waits in, this compiler destroys twice.
asio::awaitable<ExtensionWorker::Answer> HomeScreen::ask(messages::Envelope question, Urgency urgency) {
  auto answer = co_await extension_.ask(std::move(question), urgency);
  letExtensionGoWhenIdle();
  co_return answer;
}

asio::awaitable<std::expected<std::string, std::string>> HomeScreen::draw(messages::Envelope question) {
  auto answer = co_await ask(std::move(question));
  if (!answer) co_return std::unexpected(answer.error());
  auto* picture = std::get_if<messages::Picture>(&*answer);
  if (picture == nullptr) co_return std::unexpected(messageOf(*answer));
  co_return std::move(picture->bytes);
}

asio::awaitable<std::expected<std::string, std::string>> HomeScreen::drawPatiently(const messages::Envelope& question) {
  constexpr int attempts = 3;
  asio::steady_timer pause(executor_);
  for (int attempt = 1;; ++attempt) {
    messages::Envelope again = question;
    auto bytes = co_await draw(std::move(again));
    if (bytes || attempt == attempts) co_return bytes;
    pause.expires_after(std::chrono::milliseconds(300));
    co_await pause.async_wait(asio::use_awaitable);
  }
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

asio::awaitable<void> HomeScreen::drawAnew(std::int64_t id, PictureKey key, JSON entry, Date date) {
  ShownWidget* widget = find(id);
  if (widget == nullptr) co_return;
  const Date moment = options_.clock.now();
  auto question = drawing(widget->placed, entry, PictureFormat::json, 2, moment);
  const auto bytes = co_await draw(std::move(question));
  widget = find(id);
  if (widget == nullptr) co_return;
  widget->drawing.reset();
  JSON document = bytes ? JSON::parse(*bytes, nullptr, false) : JSON();
  if (bytes && document.is_object()) {
    std::string hash = hashOf(document.value("drawn", JSON()).dump() + document.value("colorScheme", ""));
    document.erase("drawn");
    DrawnWidget picture{.key = key,
                        .entry = std::move(entry),
                        .document = std::move(document),
                        .hash = std::move(hash),
                        .entryDate = date,
                        .drawnAt = moment};
    const bool looksTheSame = widget->drawn && widget->drawn->hash == picture.hash;
    const bool isTheSame = looksTheSame && !widget->failure && widget->drawn->entryDate == picture.entryDate &&
                           widget->drawn->document == picture.document;
    if (looksTheSame) picture.pictures = std::move(widget->drawn->pictures);
    if (!isTheSame) changes_.change();
    widget->drawn = std::move(picture);
    widget->failure.reset();
    widget->failures = 0;
    widget->retryAt.reset();
  } else {
    const Date now = options_.clock.now();
    ++widget->failures;
    widget->retryAt = now + pauseAfter(widget->failures);
    const std::string message = bytes ? "the widget extension sent a picture that cannot be read" : bytes.error();
    widget->failure = WidgetFailure{.message = message, .since = widget->failure ? widget->failure->since : now};
    changes_.change();
  }
  update();
}

asio::awaitable<Result<std::string>> HomeScreen::picture(std::int64_t id, double scale, std::optional<Date> moment) {
  ShownWidget* widget = find(id);
  if (widget == nullptr) co_return refused(Refusal::Reason::unknown, "There is no such widget.");
  JSON entry;
  Date drawnAt = moment.value_or(Date());
  std::string hash;
  if (moment) {
    const auto index = entryAt(widget->placed.kind, *moment);
    if (!index) co_return refused(Refusal::Reason::failed, "nothing is known of the widget yet");
    entry = kinds_.at(widget->placed.kind).timeline.wholeEntry(*index);
  } else {
    if (!widget->drawn) {
      co_return refused(Refusal::Reason::failed, "the widget has not been drawn yet");
    }
    if (const auto known = widget->drawn->pictures.find(scale); known != widget->drawn->pictures.end()) {
      co_return known->second;
    }
    entry = widget->drawn->entry;
    drawnAt = widget->drawn->drawnAt;
    hash = widget->drawn->hash;
  }
  const auto question = drawing(widget->placed, std::move(entry), PictureFormat::png, scale, drawnAt);
  auto bytes = co_await drawPatiently(question);
  widget = find(id);
  if (widget == nullptr) co_return refused(Refusal::Reason::unknown, "There is no such widget.");
  if (!bytes) {
    if (!moment && !widget->lastPicture.empty()) co_return widget->lastPicture;
    co_return refused(Refusal::Reason::failed, bytes.error());
  }
  if (!moment && widget->drawn && widget->drawn->hash == hash) {
    constexpr std::size_t mostScales = 2;
    auto& pictures = widget->drawn->pictures;
    if (pictures.size() >= mostScales) pictures.clear();
    pictures[scale] = *bytes;
    widget->lastPicture = *bytes;
  }
  co_return std::move(*bytes);
}

asio::awaitable<Result<std::string>> HomeScreen::preview(std::string kind, std::string family, double scale) {
  const Date now = options_.clock.now();
  auto question = envelope(providerRequest(messages::ProviderOperation::snapshot, kind), now);
  const auto answer = co_await ask(std::move(question));
  if (!answer) co_return refused(Refusal::Reason::failed, answer.error());
  const auto* snapshot = std::get_if<messages::Timeline>(&*answer);
  if (snapshot == nullptr || snapshot->entries.empty()) {
    co_return refused(Refusal::Reason::impossible, messageOf(*answer));
  }
  question = drawing(placedAs(kind, family), snapshot->wholeEntry(0), PictureFormat::png, scale, now);
  auto bytes = co_await draw(std::move(question));
  if (!bytes) co_return refused(Refusal::Reason::impossible, bytes.error());
  co_return std::move(*bytes);
}

asio::awaitable<Result<JSON>> HomeScreen::at(Date moment) {
  JSON widgets = JSON::array();
  std::vector<std::int64_t> ids;
  for (const ShownWidget& widget : widgets_) ids.push_back(widget.placed.id);
  for (const std::int64_t id : ids) {
    const ShownWidget* widget = find(id);
    if (widget == nullptr) continue;
    const auto index = entryAt(widget->placed.kind, moment);
    if (!index) continue;
    auto question = drawing(widget->placed, kinds_.at(widget->placed.kind).timeline.wholeEntry(*index),
                            PictureFormat::json, 2, moment);
    const auto bytes = co_await draw(std::move(question));
    if (!bytes) continue;
    const JSON document = JSON::parse(*bytes, nullptr, false);
    if (!document.is_object()) continue;
    widgets.push_back(widgetJSON(id, document));
  }
  co_return momentJSON(moment, std::move(widgets));
}

Result<std::int64_t> HomeScreen::add(const std::string& kind, const std::string& family) {
  const auto known = std::ranges::find(catalogue_.widgets, kind, &messages::WidgetDescription::kind);
  if (known == catalogue_.widgets.end() || std::ranges::find(known->families, family) == known->families.end()) {
    return refused(Refusal::Reason::impossible, "There is no such widget in the gallery.");
  }
  const auto id = store_.add(kind, family, home::placeOfFamily(family));
  if (!id) return refused(reasonOf(id.error()), id.error().message);
  placedWidgetsChanged();
  return *id;
}

Result<void> HomeScreen::remove(std::int64_t id) {
  if (const auto done = store_.remove(id); !done) return refused(reasonOf(done.error()), done.error().message);
  placedWidgetsChanged();
  return {};
}

Result<void> HomeScreen::move(std::int64_t id, int position) {
  if (const auto done = store_.move(id, position); !done) return refused(reasonOf(done.error()), done.error().message);
  placedWidgetsChanged();
  return {};
}

void HomeScreen::placedWidgetsChanged() {
  readPlacedWidgets();
  changes_.change();
  update();
}

asio::awaitable<Result<void>> HomeScreen::tap(std::int64_t id, std::string item, std::optional<Date> date) {
  ShownWidget* widget = find(id);
  if (widget == nullptr) co_return refused(Refusal::Reason::unknown, "There is no such widget.");
  const std::string kind = widget->placed.kind;
  auto question = envelope(tapRequest(item, date), options_.clock.now());
  const auto answer = co_await ask(std::move(question), Urgency::tap);
  if (!answer) co_return refused(Refusal::Reason::failed, answer.error());
  if (!std::holds_alternative<messages::Done>(*answer)) {
    co_return refused(Refusal::Reason::failed, messageOf(*answer));
  }
  // What the action wrote is in the answer of the request that follows, and asks for none of its own.
  files_ = ContainerFiles::of(options_.world.container, files_);
  happened(OutsideEvent::tap);
  for (std::uint64_t known = answers_.version(); kinds_.contains(kind) && kinds_.at(kind).state.asking;) {
    known = co_await answers_.after(known);
  }
  if (kinds_.contains(kind) && kinds_.at(kind).state.failures) {
    co_return refused(Refusal::Reason::failed, kinds_.at(kind).lastFailure->message);
  }
  co_return Result<void>();
}

foundation::Calendar HomeScreen::calendar() const {
  return foundation::Calendar::iso8601(
      foundation::TimeZone::named(options_.world.timeZone).value_or(foundation::TimeZone()));
}

ShownWidget* HomeScreen::find(std::int64_t id) {
  const auto found = std::ranges::find(widgets_, id, [](const ShownWidget& widget) { return widget.placed.id; });
  return found == widgets_.end() ? nullptr : &*found;
}

std::optional<std::size_t> HomeScreen::entryAt(const std::string& kind, Date moment) const {
  const auto found = kinds_.find(kind);
  if (found == kinds_.end() || found->second.timeline.entries.empty()) return std::nullopt;
  const auto shown = found->second.state.dates.shown(moment);
  return shown ? shown->index : 0;
}

}  // namespace host
