#include "home/home_store.hpp"

#include <algorithm>

#include "home/arrangement.hpp"
#include "home/home_table.hpp"
#include "home/lock_screen_room.hpp"

namespace home {

namespace {

using Reason = StoreError::Reason;

std::unexpected<StoreError> unknown() {
  return std::unexpected(StoreError{.reason = Reason::unknownWidget, .message = "There is no such widget."});
}

bool holds(const std::vector<PlacedWidget>& widgets, std::int64_t id) {
  return std::ranges::find(widgets, id, &PlacedWidget::id) != widgets.end();
}

}  // namespace

HomeStore::HomeStore(const std::filesystem::path& file, std::chrono::milliseconds patience)
    : file_(openHomeFile(file, patience)), widgets_(arranged(storedWidgets(file_.database))) {}

/// Performs an action on the rows as they are in the file now, in a transaction that is kept if the action succeeds.
template <class Result>
std::expected<Result, StoreError> HomeStore::change(
    const std::function<std::expected<Result, StoreError>(const Rows& rows)>& action) {
  try {
    auto transaction = file_.database.begin();
    auto result = action(storedWidgets(file_.database));
    auto changed = arranged(storedWidgets(file_.database));
    if (result) transaction.commit();
    widgets_ = std::move(changed);
    return result;
  } catch (const database::Error& error) {
    return std::unexpected(StoreError{.message = "The change could not be stored: " + std::string(error.what()) + "."});
  }
}

std::expected<std::int64_t, StoreError> HomeStore::add(std::string_view kind, std::string_view family, Place place) {
  return change<std::int64_t>([&](const Rows& rows) -> std::expected<std::int64_t, StoreError> {
    if (place == Place::lock && !hasRoom(rows, family)) {
      return std::unexpected(
          StoreError{.reason = Reason::noRoom, .message = "The lock screen has no room for another such widget."});
    }
    write(rows, arranged(rows));
    return insertWidget(
        file_.database,
        {.kind = std::string(kind), .family = std::string(family), .place = place, .position = endOf(rows, place)});
  });
}

std::expected<void, StoreError> HomeStore::remove(std::int64_t id) {
  return change<void>([&](const Rows& rows) -> std::expected<void, StoreError> {
    if (!holds(rows, id)) return unknown();
    file_.database.remove(columns::id == id);
    const Rows rest = storedWidgets(file_.database);
    write(rest, arranged(rest));
    return {};
  });
}

std::expected<void, StoreError> HomeStore::move(std::int64_t id, int position) {
  return change<void>([&](const Rows& rows) -> std::expected<void, StoreError> {
    if (!holds(rows, id)) return unknown();
    write(rows, moved(rows, id, position));
    return {};
  });
}

void HomeStore::write(const Rows& rows, const Rows& arrangement) {
  for (const PlacedWidget& widget : arrangement) {
    if (std::ranges::find(rows, widget) != rows.end()) continue;
    file_.database.update(columns::id == widget.id, database::set(columns::position, widget.position));
  }
}

}  // namespace home
