#include "lists/thoughts.hpp"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

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
      {5, "You can't cross the sea merely by standing and staring at the water.;;;;Rabindranath Tagore"},
      {136,
       "Impermanence is a principle of harmony. When we don\u2019t struggle against it, we are in harmony with "
       "reality.;;;;Thich Nhat Hanh"},
      {140,
       "Do not go where the path may lead, go instead where there is no path and leave a trail.;;;;Ralph Waldo "
       "Emerson"},
  };
  for (const auto& row : rows) EXPECT_EQ(thoughtTable()[row.place - 1], row.text) << row.place;
}

}  // namespace
}  // namespace mirune
