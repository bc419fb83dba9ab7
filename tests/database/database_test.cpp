#include "database/database.hpp"

#include <gtest/gtest.h>

#include "database/book.hpp"
#include "support/temporary_folder.hpp"

namespace {

using namespace std::chrono_literals;
using database::ascending;
using database::Condition;
using database::Database;
using database::descending;
using database::set;

/// Four books in a database that is gone with the test.
class DatabaseTest : public testing::Test {
 protected:
  DatabaseTest() {
    database.createTable<Book>();
    for (const auto& [bookTitle, bookPages, bookWeight] :
         {std::tuple{"Emma", 474, 0.4}, {"Middlemarch", 880, 1.1}, {"Persuasion", 249, 0.3}, {"Silas", 249, 0.2}}) {
      database.insert(set(title, bookTitle), set(pages, bookPages), set(weight, bookWeight));
    }
  }

  std::string titles(const std::vector<Book>& books) {
    std::string result;
    for (const Book& book : books) result += (result.empty() ? "" : " ") + book.title;
    return result;
  }

  Database database = Database::inMemory();
};

TEST_F(DatabaseTest, SelectsTheRowsThatMeetACondition) {
  struct Case {
    Condition<Book> condition;
    const char* found;
  };
  const Case cases[] = {
      {{}, "Emma Middlemarch Persuasion Silas"},
      {pages == 249, "Persuasion Silas"},
      {pages != 249, "Emma Middlemarch"},
      {pages < 474, "Persuasion Silas"},
      {pages <= 474, "Emma Persuasion Silas"},
      {pages > 474, "Middlemarch"},
      {pages >= 474, "Emma Middlemarch"},
      {weight < 0.35, "Persuasion Silas"},
      {title == "Emma", "Emma"},
      {title == "Emma\" OR 1 --", ""},
      {pages == 249 && weight > 0.25, "Persuasion"},
      {title == "Emma" || (pages == 249 && weight < 0.25), "Emma Silas"},
      {(title == "Emma" || pages == 249) && weight < 0.25, "Silas"},
  };
  for (const auto& [condition, found] : cases) {
    EXPECT_EQ(titles(database.select(condition, ascending(id))), found) << condition.statement.text;
    EXPECT_EQ(static_cast<std::size_t>(database.count(condition)), database.select(condition).size());
  }
}

TEST_F(DatabaseTest, SortsByOneColumnAfterAnother) {
  EXPECT_EQ(titles(database.select(Condition<Book>(), ascending(pages), ascending(weight))),
            "Silas Persuasion Emma Middlemarch");
  EXPECT_EQ(titles(database.select(Condition<Book>(), descending(pages), descending(title))),
            "Middlemarch Emma Silas Persuasion");
}

TEST_F(DatabaseTest, UpdatesAndRemovesTheRowsThatMeetACondition) {
  EXPECT_EQ(database.update(pages == 249, set(pages, 250), set(weight, 0.5)), 2);
  EXPECT_EQ(database.count(pages == 250 && weight == 0.5), 2);
  EXPECT_EQ(database.update(pages == 1, set(pages, 2)), 0);
  EXPECT_EQ(database.remove(pages > 250), 2);
  EXPECT_EQ(titles(database.select<Book>()), "Persuasion Silas");
}

TEST_F(DatabaseTest, FindsTheGreatestValue) {
  EXPECT_EQ(database.max(pages), 880);
  EXPECT_EQ(database.max(title, pages == 249), "Silas");
  EXPECT_EQ(database.max(pages, title == "none"), std::nullopt);
}

TEST_F(DatabaseTest, GivesBackWhatWasWritten) {
  const std::string odd("a\0'\";?1 \xC3\xA4", 10);
  const auto key = database.insert(set(title, odd), set(pages, -2147483647 - 1), set(weight, -0.1));
  EXPECT_EQ(database.select(id == key),
            (std::vector<Book>{{.id = key, .title = odd, .pages = -2147483647 - 1, .weight = -0.1}}));
}

TEST_F(DatabaseTest, ATransactionHappensAsAWholeOrNotAtAll) {
  {
    auto transaction = database.begin();
    database.remove(Condition<Book>());
  }
  EXPECT_EQ(database.count<Book>(), 4);
  {
    auto transaction = database.begin();
    database.remove(pages == 249);
    transaction.commit();
  }
  EXPECT_EQ(database.count<Book>(), 2);
}

TEST(DatabaseFile, ANumberThatTheMemberCannotHoldIsAnError) {
  const support::TemporaryFolder folder;
  Database database(folder / "books.db", 0ms);
  database.createTable<Book>();
  database.insert(set(title, "long"), set(pages, 1), set(weight, 1.0));
  database.update(database::Condition<ThickBook>(), set(database::column<&ThickBook::pages>, 3'000'000'000));
  try {
    database.select<Book>();
    FAIL() << "it was read";
  } catch (const database::Error& error) {
    EXPECT_EQ(error.fault(), database::Fault::mismatch) << error.what();
  }
}

}  // namespace
