#include <functional>
#include <iomanip>
#include <sstream>

#include "host/live/extension_messages.hpp"
#include "host/live/home_screen.hpp"
#include "schedule/retry_pause.hpp"

// What the home screen has drawn: the pictures that it shows, those of another moment, and those of the gallery.

namespace host {

namespace asio = boost::asio;
using foundation::Date;
using foundation::JSON;
using messages::PictureFormat;

namespace {

/// Of all that decides what a picture looks like. Icons are drawn by name: that their files have changed only shows in
/// their number.
std::string hashOf(const JSON& document, std::size_t icons) {
  const std::string painted =
      document.value("drawn", JSON()).dump() + document.value("colorScheme", "") + std::to_string(icons);
  std::ostringstream text;
  text << std::hex << std::setw(16) << std::setfill('0') << std::hash<std::string>()(painted);
  return text.str();
}

home::PlacedWidget placedAs(const std::string& kind, const std::string& family) {
  return {.kind = kind, .family = family};
}

JSON widgetJSON(std::int64_t id, const JSON& document, std::size_t icons) {
  return {{"id", id},
          {"picture", hashOf(document, icons)},
          {"url", document.value("url", JSON())},
          {"meaning", document.value("meaning", JSON::array())}};
}

JSON momentJSON(Date moment, JSON widgets) {
  return {{"moment", moment}, {"widgets", std::move(widgets)}};
}

}  // namespace

messages::Envelope HomeScreen::drawing(const home::PlacedWidget& widget, JSON entry, PictureFormat format, double scale,
                                       Date moment) const {
  messages::DrawEntry request{
      .kind = widget.kind, .family = widget.family, .entry = std::move(entry), .format = format, .scale = scale};
  return envelope(std::move(request), moment, widget.family);
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
    std::string hash = hashOf(document, files_.icons());
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
    widget->retryAt = now + retryPause(widget->failures);
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
    widgets.push_back(widgetJSON(id, document, files_.icons()));
  }
  co_return momentJSON(moment, std::move(widgets));
}

std::optional<std::size_t> HomeScreen::entryAt(const std::string& kind, Date moment) const {
  const auto found = kinds_.find(kind);
  if (found == kinds_.end() || found->second.timeline.entries.empty()) return std::nullopt;
  const auto shown = found->second.state.dates.shown(moment);
  return shown ? shown->index : 0;
}

}  // namespace host
