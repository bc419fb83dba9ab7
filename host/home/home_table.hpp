#pragma once

#include <optional>
#include <string>
#include <tuple>

#include "database/table.hpp"
#include "home/placed_widget.hpp"

// How placed widgets stand in the file.

template <>
struct database::Storage<home::Place> {
  static constexpr std::string_view columnType = "TEXT";
  static Value stored(home::Place place) { return std::string(home::nameOf(place)); }
  static std::optional<home::Place> read(const Value& value) {
    const auto* name = std::get_if<std::string>(&value);
    return name == nullptr ? std::nullopt : home::placeNamed(*name);
  }
};

template <>
struct database::Table<home::PlacedWidget> {
  using Widget = home::PlacedWidget;
  static constexpr std::string_view name = "widgets";
  static constexpr std::tuple columns{Column<&Widget::id>{"id"}, Column<&Widget::kind>{"kind"},
                                      Column<&Widget::family>{"family"}, Column<&Widget::place>{"place"},
                                      Column<&Widget::position>{"position"}};
};

namespace home::columns {

inline constexpr auto id = database::column<&PlacedWidget::id>;
inline constexpr auto kind = database::column<&PlacedWidget::kind>;
inline constexpr auto family = database::column<&PlacedWidget::family>;
inline constexpr auto place = database::column<&PlacedWidget::place>;
inline constexpr auto position = database::column<&PlacedWidget::position>;

}  // namespace home::columns
