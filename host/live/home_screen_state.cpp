#include <set>

#include "foundation/locale.hpp"
#include "host/live/home_screen.hpp"

// What the home screen tells of itself.

namespace host {

namespace asio = boost::asio;
using foundation::Date;
using foundation::JSON;

namespace {

JSON orNull(const auto& value) {
  return value ? JSON(*value) : JSON();
}

JSON catalogueJSON(const messages::Catalogue& catalogue) {
  JSON widgets = JSON::array();
  for (const messages::WidgetDescription& widget : catalogue.widgets) {
    JSON families = JSON::array();
    for (const messages::FamilySize& size : catalogue.sizes) {
      if (std::ranges::find(widget.families, size.family) == widget.families.end()) continue;
      families.push_back({{"family", size.family}, {"width", size.width}, {"height", size.height}});
    }
    widgets.push_back({{"kind", widget.kind},
                       {"shortName", widget.shortName},
                       {"displayName", widget.displayName},
                       {"description", widget.description},
                       {"families", std::move(families)}});
  }
  return widgets;
}

JSON failureJSON(const std::optional<WidgetFailure>& failure, const char* when) {
  return failure ? JSON{{"message", failure->message}, {when, failure->since}} : JSON();
}

JSON screenJSON(const std::string& screen) {
  const std::size_t cross = screen.find('x');
  return {{"width", std::stoi(screen.substr(0, cross))}, {"height", std::stoi(screen.substr(cross + 1))}};
}

/// A kind that fails says so on each of its widgets, unless the widget has a trouble of its own.
std::optional<WidgetFailure> failureOf(const ShownWidget& widget, const KindTimeline& kind) {
  if (widget.failure || !kind.state.failures) return widget.failure;
  return kind.lastFailure;
}

JSON reasonsJSON(const ShownWidget& widget, const KindTimeline& kind) {
  const auto& next = kind.decision.nextRequest;
  return {{"id", widget.placed.id},
          {"entryDate", widget.drawn ? JSON(widget.drawn->entryDate) : JSON()},
          {"nextChange", orNull(kind.decision.nextChange)},
          {"nextRequest", next ? JSON{{"at", next->at}, {"reason", textOf(next->reason)}} : JSON()},
          {"lastRequest", orNull(kind.lastRequest)},
          {"lastFailure", failureJSON(widget.failure ? widget.failure : kind.lastFailure, "at")}};
}

JSON whyJSON(JSON widgets, JSON files, bool isExtensionRunning) {
  return {
      {"widgets", std::move(widgets)}, {"files", std::move(files)}, {"extension", {{"running", isExtensionRunning}}}};
}

}  // namespace

JSON HomeScreen::state() const {
  const Date now = options_.clock.now();
  std::string theme = "light";
  JSON widgets = JSON::array();
  for (const ShownWidget& widget : widgets_) {
    const home::PlacedWidget& placed = widget.placed;
    const auto* known = description(placed.kind);
    const auto size = std::ranges::find(catalogue_.sizes, placed.family, &messages::FamilySize::family);
    if (known == nullptr || size == catalogue_.sizes.end()) continue;
    const bool isHome = placed.place == home::Place::home;
    const JSON none;
    const JSON& document = widget.drawn ? widget.drawn->document : none;
    if (isHome && widget.drawn) theme = document.value("colorScheme", theme);
    widgets.push_back({{"id", placed.id},
                       {"kind", placed.kind},
                       {"shortName", known->shortName},
                       {"displayName", known->displayName},
                       {"family", placed.family},
                       {"place", isHome ? "home" : "lock"},
                       {"position", placed.position},
                       {"width", size->width},
                       {"height", size->height},
                       {"picture", widget.drawn ? JSON(widget.drawn->hash) : JSON()},
                       {"entryDate", widget.drawn ? JSON(widget.drawn->entryDate) : JSON()},
                       {"drawnAt", widget.drawn ? JSON(widget.drawn->drawnAt) : JSON()},
                       {"url", widget.drawn ? document.value("url", JSON()) : JSON()},
                       {"meaning", widget.drawn ? document.value("meaning", JSON::array()) : JSON::array()},
                       {"failure", failureJSON(failureOf(widget, kinds_.at(placed.kind)), "since")}});
  }

  std::set<Date> moments;
  constexpr std::size_t mostMoments = 500;
  for (const auto& [kind, timeline] : kinds_) {
    auto next = timeline.state.dates.next(now);
    for (std::size_t count = 0; next && count < mostMoments; ++count) {
      moments.insert(*next);
      next = timeline.state.dates.next(*next);
    }
  }
  JSON changes = JSON::array();
  for (const Date moment : moments) {
    if (changes.size() == mostMoments) break;
    changes.push_back(moment);
  }

  const auto locale = foundation::Locale::named(options_.world.locale);
  return {{"version", changes_.version()},
          {"now", now},
          {"speed", options_.clock.speed()},
          {"timeZone", options_.world.timeZone},
          {"locale", options_.world.locale},
          {"direction", locale && locale->isRightToLeft() ? "rtl" : "ltr"},
          {"screen", screenJSON(options_.world.screen)},
          {"theme", theme},
          {"plannerURL", options_.world.plannerURL},
          {"words", options_.words},
          {"catalogue", catalogueJSON(catalogue_)},
          {"widgets", std::move(widgets)},
          {"changes", std::move(changes)}};
}

asio::awaitable<JSON> HomeScreen::why() {
  auto question = envelope(messages::DiagnoseContainer{}, options_.clock.now());
  const auto answer = co_await ask(std::move(question));
  JSON files = JSON::array();
  if (answer && std::holds_alternative<messages::Diagnosis>(*answer)) files = JSON(*answer).at("files");
  JSON widgets = JSON::array();
  for (const ShownWidget& widget : widgets_) {
    widgets.push_back(reasonsJSON(widget, kinds_.at(widget.placed.kind)));
  }
  co_return whyJSON(std::move(widgets), std::move(files), extension_.isRunning());
}

}  // namespace host
