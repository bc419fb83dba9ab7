#include "lists/thoughts.hpp"

#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "foundation/strings.hpp"

namespace mirune {
namespace {

constexpr std::string_view separator = ";;;;";
constexpr std::size_t tableSize = 140;

struct Thought {
  std::string saying;
  std::string author;
};

std::vector<Thought> allThoughts() {
  std::vector<Thought> thoughts;
  for (const std::string_view text : thoughtTable()) {
    const auto end = text.find(separator);
    if (end == std::string_view::npos) throw std::runtime_error("no separator: " + std::string(text));
    thoughts.push_back({std::string(text.substr(0, end)), std::string(text.substr(end + separator.size()))});
  }
  return thoughts;
}

/// The first and the last five were here before the others.
bool isGiven(std::size_t index) {
  return index < 5 || index >= tableSize - 5;
}

/// The small Latin letters and digits alone, which is what makes two sayings the same.
std::string essence(const std::string& text) {
  std::string letters = foundation::lowercased(text);
  std::erase_if(letters, [](char byte) { return !(byte >= 'a' && byte <= 'z') && !(byte >= '0' && byte <= '9'); });
  return letters;
}

TEST(Thoughts, AreSayingsWithOneAuthorEach) {
  ASSERT_EQ(thoughtTable().size(), tableSize);
  for (const auto& [saying, author] : allThoughts()) {
    for (const std::string& part : {saying, author}) {
      EXPECT_FALSE(part.empty()) << saying;
      EXPECT_EQ(part.find(separator), std::string::npos) << part;
      EXPECT_EQ(part.find_first_of("\n\r\t"), std::string::npos) << part;
      EXPECT_EQ(part.find("  "), std::string::npos) << part;
      EXPECT_FALSE(part.starts_with(' ') || part.ends_with(' ')) << part;
      EXPECT_NO_THROW(nlohmann::json(part).dump()) << "not UTF-8: " << part;
    }
  }
}

TEST(Thoughts, BeginAndEndWithThoseThatWereGiven) {
  const struct {
    std::size_t place;  ///< from 1
    const char* text;
  } rows[] = {
      {1, "Life is 10% what happens to us and 90% how we react to it.;;;;Charles R. Swindoll"},
      {2, "In the middle of difficulty lies opportunity.;;;;Albert Einstein"},
      {3, "Keep your eyes on the stars, and your feet on the ground.;;;;Theodore Roosevelt"},
      {4, "Imagination is more important than knowledge.;;;;Albert Einstein"},
      {5, "You can't cross the sea merely by standing and staring at the water.;;;;Rabindranath Tagore"},
      {136,
       "Impermanence is a principle of harmony. When we don\u2019t struggle against it, we are in harmony with "
       "reality.;;;;Thich Nhat Hanh"},
      {137, "Not all of us can do great things. But we can do small things with great love.;;;;Mother Teresa"},
      {138, "The Future Belongs To The Competent. Get Good, Get Better, Be The Best!;;;;Brian Tracy"},
      {139, "When I let go of what I am, I become what I might be.;;;;Lao Tzu"},
      {140,
       "Do not go where the path may lead, go instead where there is no path and leave a trail.;;;;Ralph Waldo "
       "Emerson"},
  };
  for (const auto& row : rows) EXPECT_EQ(thoughtTable()[row.place - 1], row.text) << row.place;
}

TEST(Thoughts, AreNeverTheSame) {
  std::set<std::string> seen;
  for (const Thought& thought : allThoughts()) {
    EXPECT_TRUE(seen.insert(essence(thought.saying)).second) << "twice: " << thought.saying;
  }
  for (auto shorter = seen.begin(); shorter != seen.end(); ++shorter) {
    const auto longer = std::next(shorter);
    EXPECT_FALSE(longer != seen.end() && longer->starts_with(*shorter)) << *shorter;
  }
}

TEST(Thoughts, ChangeTheirAuthorFromDayToDay) {
  const auto thoughts = allThoughts();
  std::map<std::string, int> timesOf;
  for (std::size_t index = 0; index < thoughts.size(); ++index) {
    EXPECT_NE(thoughts[index].author, thoughts[(index + 1) % thoughts.size()].author) << index;
    EXPECT_LE(++timesOf[thoughts[index].author], 4) << thoughts[index].author;
  }
}

TEST(Thoughts, AreSetWithTypographicMarks) {
  for (std::size_t index = 0; index < tableSize; ++index) {
    if (isGiven(index)) continue;
    const std::string text(thoughtTable()[index]);
    for (const char* mark : {"'", "\"", "`", "--", " - ", "..."}) {
      EXPECT_EQ(text.find(mark), std::string::npos) << mark << " in: " << text;
    }
    const std::string saying = text.substr(0, text.find(separator));
    EXPECT_TRUE(saying.ends_with('.') || saying.ends_with('?') || saying.ends_with('!') || saying.ends_with("\u201D"))
        << saying;
  }
}

}  // namespace
}  // namespace mirune
