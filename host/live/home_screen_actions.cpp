#include <algorithm>

#include "host/live/extension_messages.hpp"
#include "host/live/home_screen.hpp"
#include "host/mark_task_complete.hpp"

// What people do on the home screen: place widgets, and tap them.

namespace host {

namespace asio = boost::asio;
using foundation::Date;
using foundation::JSON;

namespace {

messages::Request tapRequest(const std::string& item, std::optional<Date> date) {
  return messages::PerformIntent{.intent = markTaskComplete, .parameters = {{"id", item}, {"date", JSON(date)}}};
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

std::unexpected<Refusal> refusedBy(const home::StoreError& error) {
  return refused(reasonOf(error), error.message);
}

}  // namespace

Result<std::int64_t> HomeScreen::add(const std::string& kind, const std::string& family) {
  const auto* known = description(kind);
  if (known == nullptr || std::ranges::find(known->families, family) == known->families.end()) {
    return refused(Refusal::Reason::impossible, "There is no such widget in the gallery.");
  }
  const auto id = store_.add(kind, family, home::placeOfFamily(family));
  if (!id) return refusedBy(id.error());
  placedWidgetsChanged();
  return *id;
}

Result<void> HomeScreen::remove(std::int64_t id) {
  if (const auto done = store_.remove(id); !done) return refusedBy(done.error());
  placedWidgetsChanged();
  return {};
}

Result<void> HomeScreen::move(std::int64_t id, int position) {
  if (const auto done = store_.move(id, position); !done) return refusedBy(done.error());
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
  const auto answer = co_await ask(std::move(question), ExtensionWorker::Urgency::tap);
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

}  // namespace host
