#include "home/home_store.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <map>
#include <random>

#include "home/default_layout.hpp"
#include "home/listing.hpp"
#include "support/temporary_folder.hpp"

namespace {

using home::HomeStore;
using home::Place;
using Reason = home::StoreError::Reason;

/// A store whose screens were emptied.
HomeStore emptied(const std::filesystem::path& file) {
  HomeStore store(file);
  while (!store.widgets().empty()) EXPECT_TRUE(store.remove(store.widgets().front().id));
  return store;
}

TEST(HomeStore, TheFirstStartShowsEveryKindOnce) {
  const support::TemporaryFolder folder;
  const auto file = folder / "data/mirune/home.db";
  const HomeStore store(file);
  EXPECT_EQ(store.notice(), std::nullopt);
  EXPECT_EQ(
      contents(store.widgets()),
      "home Mirune_Widgets2 systemSmall\nhome Mirune_Widgets7 systemSmall\nhome Mirune_Widgets5 systemMedium\n"
      "home Mirune_Widgets4 systemMedium\nhome Mirune_Widgets3 systemSmall\nhome Mirune_Widgets6 systemSmall\n"
      "home Mirune_Widgets8 systemMedium\nhome Mirune_Widgets systemMedium\nlock Mirune_Widgets4 accessoryInline\n"
      "lock Mirune_Widgets2 accessoryCircular\nlock Mirune_Widgets3 accessoryCircular\n"
      "lock Mirune_Widgets4 accessoryRectangular\n");
  EXPECT_EQ(order(store.widgets()), "home: 1 2 3 4 5 6 7 8 | lock: 9 10 11 12");
  struct stat status = {};
  ASSERT_EQ(::stat((folder / "data/mirune").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST(HomeStore, ChangesAreThereAfterReopening) {
  const support::TemporaryFolder folder;
  const auto file = folder / "home.db";
  HomeStore store(file);
  EXPECT_EQ(store.add("From_A_Newer_Version", "systemHuge", Place::home), 13);
  EXPECT_TRUE(store.remove(2));
  EXPECT_TRUE(store.remove(9));
  EXPECT_TRUE(store.move(12, 0));
  EXPECT_TRUE(store.move(13, 1));
  EXPECT_EQ(order(store.widgets()), "home: 1 13 3 4 5 6 7 8 | lock: 12 10 11");
  EXPECT_EQ(HomeStore(file).widgets(), store.widgets());
  EXPECT_EQ(store.widgets()[1].kind, "From_A_Newer_Version");
}

TEST(HomeStore, AnEmptiedHomeScreenStaysEmptyAndReusesNoId) {
  const support::TemporaryFolder folder;
  emptied(folder / "home.db");
  HomeStore store(folder / "home.db");
  EXPECT_EQ(order(store.widgets()), "home: | lock:");
  EXPECT_EQ(store.add("k", "systemSmall", Place::home), 13);
}

TEST(HomeStore, WhatCannotBeDoneIsRefused) {
  const support::TemporaryFolder folder;
  HomeStore store(folder / "home.db");
  const auto before = store.widgets();
  EXPECT_EQ(store.remove(99).error().reason, Reason::unknownWidget);
  EXPECT_EQ(store.move(99, 0).error().reason, Reason::unknownWidget);
  EXPECT_EQ(store.add("k", "accessoryInline", Place::lock).error().reason, Reason::noRoom);
  EXPECT_EQ(store.add("k", "accessoryCircular", Place::lock).error().reason, Reason::noRoom);
  EXPECT_EQ(store.widgets(), before);
}

TEST(HomeStore, AgreesWithAPlainModelWhateverIsDone) {
  const support::TemporaryFolder folder;
  const auto file = folder / "home.db";
  HomeStore store = emptied(file);
  std::map<Place, std::vector<std::int64_t>> model = {{Place::home, {}}, {Place::lock, {}}};
  const auto expected = [&] {
    std::string text;
    for (const auto& [place, ids] : model) {
      text += std::string(text.empty() ? "" : " | ") + std::string(nameOf(place)) + ":";
      for (const auto id : ids) text += " " + std::to_string(id);
    }
    return text;
  };
  std::mt19937 random(7);
  const auto below = [&](std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
  };
  for (int step = 0; step < 200; ++step) {
    const Place place = below(4) == 0 ? Place::lock : Place::home;
    auto& ids = model[place];
    const auto action = below(5);
    if (ids.empty() || (action == 0 && ids.size() < 9)) {
      ids.push_back(store.add("k", "unlimited", place).value());
    } else if (action == 1) {
      const auto victim = ids.begin() + static_cast<std::ptrdiff_t>(below(ids.size()));
      ASSERT_TRUE(store.remove(*victim));
      ids.erase(victim);
    } else {
      const auto id = ids[below(ids.size())];
      const int position = static_cast<int>(below(ids.size() + 4)) - 2;
      ASSERT_TRUE(store.move(id, position));
      std::erase(ids, id);
      ids.insert(ids.begin() + std::clamp(position, 0, static_cast<int>(ids.size())), id);
    }
    ASSERT_EQ(order(store.widgets()), expected()) << "step " << step;
  }
  EXPECT_EQ(order(HomeStore(file).widgets()), expected());
}

TEST(HomeStore, SeesWhatAnotherProcessDidWithItsNextChange) {
  const support::TemporaryFolder folder;
  HomeStore one(folder / "home.db");
  HomeStore two(folder / "home.db");
  EXPECT_TRUE(one.remove(1));
  EXPECT_TRUE(one.move(8, 0));
  EXPECT_EQ(two.remove(1).error().reason, Reason::unknownWidget);
  EXPECT_EQ(order(two.widgets()), "home: 8 2 3 4 5 6 7 | lock: 9 10 11 12");
  EXPECT_TRUE(two.move(2, 0));
  EXPECT_TRUE(one.remove(12));
  EXPECT_EQ(order(one.widgets()), "home: 2 8 3 4 5 6 7 | lock: 9 10 11");
}

TEST(HomeStore, PositionsThatSomebodyMixedUpArePutInOrder) {
  const support::TemporaryFolder folder;
  const auto file = folder / "home.db";
  emptied(file);
  execute(file,
          "INSERT INTO widgets (kind, family, place, position) VALUES ('a', 'f', 'home', 5), "
          "('b', 'f', 'home', -3), ('c', 'f', 'home', 5), ('d', 'f', 'lock', 8)");
  HomeStore store(file);
  EXPECT_EQ(order(store.widgets()), "home: 14 13 15 | lock: 16");
  EXPECT_EQ(store.add("e", "f", Place::home), 17);
  EXPECT_TRUE(store.move(15, 0));
  EXPECT_EQ(order(store.widgets()), "home: 15 14 13 17 | lock: 16");
}

}  // namespace
