#include "shared/item_files.hpp"

#include "planner.hpp"
#include "support/recorded_cases.hpp"

namespace mirune {
namespace {

/// Every other entry of a file, from that one on.
ItemFile halfOf(const ItemFile& file, std::size_t first) {
  ItemFile half;
  std::size_t index = first;
  for (const auto& entry : file) {
    if (index++ % 2 == 0) half.insert(entry);
  }
  return half;
}

TEST(ItemFiles, KeepsWhatIsAskedForIfAllOfItDecodes) {
  Planner planner;
  for (const auto& row : support::recordedCases("platform/items.json")) {
    const auto text = row["file"].get<std::string>();
    support::writeBytes(planner.folder() / "tasks.json", text);
    const ItemFile whole = foundation::decodeJSON<ItemFile>(text).value_or(ItemFile{});
    for (const std::size_t first : {0, 1}) {
      const ItemFile half = halfOf(whole, first);
      DayKeys keys = {"1999/12/31"};
      for (const auto& [key, items] : half) keys.insert(key);
      EXPECT_EQ(readItemFile(planner.platform(), "tasks", keys), half) << text;
    }
  }
}

TEST(ItemFiles, AreEmptyWhereAnItemOfAnotherDayDoesNotDecode) {
  const nlohmann::json item = {{"type", 1},      {"id", "A"},
                               {"title", "t"},   {"isOn", false},
                               {"calid", "c"},   {"starttime", "2024-03-07T10:00:00Z"},
                               {"allday", true}, {"endtime", "2024-03-07T10:00:00Z"}};
  nlohmann::json bad = item;
  bad.erase("calid");
  Planner planner;
  const auto itemsOfToday = [&] {
    const ItemFile file = readItemFile(planner.platform(), "tasks", {"2024/03/07"});
    return itemsUnder(file, "2024/03/07").size();
  };
  planner.write("tasks.json", {{"2024/03/07", {item}}, {"2024/03/08", {item}}});
  EXPECT_EQ(itemsOfToday(), 1U);
  planner.write("tasks.json", {{"2024/03/07", {item}}, {"2024/03/08", {item, bad}}});
  EXPECT_EQ(itemsOfToday(), 0U);
}

}  // namespace
}  // namespace mirune
