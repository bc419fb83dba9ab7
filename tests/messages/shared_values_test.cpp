#include "messages/shared_values.hpp"

#include <gtest/gtest.h>

#include "messages/replies.hpp"

namespace messages {
namespace {

using foundation::JSON;

TEST(SharedValues, AreAskedForOnceAndPutBackInTheirPlaces) {
  SharedValues gathered;
  const std::string words[] = {"a", "b"};
  int asked = 0;
  const auto number = [&](const std::string& word) {
    return gathered.numberOf(&word, [&] {
      ++asked;
      return JSON{{"word", word}};
    });
  };
  Timeline timeline;
  timeline.entries.push_back({{"date", "x"}, {"data", SharedValues::reference({number(words[0]), number(words[1])})}});
  timeline.entries.push_back({{"side", {{"data", SharedValues::reference({number(words[1])})}}}});
  timeline.entries.push_back({{"data", JSON::array()}, {"n", 1}});
  timeline.shared = gathered.take();
  EXPECT_EQ(asked, 2);

  JSON sent = Reply(timeline);
  Reply received;
  sent.get_to(received);
  const Timeline& read = std::get<Timeline>(received);
  EXPECT_EQ(read, timeline);
  EXPECT_EQ(read.wholeEntry(0), JSON::parse(R"({"date": "x", "data": [{"word": "a"}, {"word": "b"}]})"));
  EXPECT_EQ(read.wholeEntry(1), JSON::parse(R"({"side": {"data": [{"word": "b"}]}})"));
  EXPECT_EQ(read.wholeEntry(2), timeline.entries[2]);
}

TEST(SharedValues, AreRefusedWhereOneIsMissing) {
  for (const char* reference : {R"({"$shared": [[1, 1]]})", R"({"$shared": [[0, 2]]})", R"({"$shared": [["a", 1]]})",
                                R"({"$shared": [[-1, 2]]})", R"({"$shared": [[0]]})", R"({"$shared": [0]})"}) {
    EXPECT_THROW(withSharedValues(JSON::parse(reference), {JSON("one")}), JSON::exception) << reference;
  }
}

}  // namespace
}  // namespace messages
