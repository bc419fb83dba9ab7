#include "foundation/json_decoder.hpp"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "foundation/iso8601.hpp"

namespace planner {

using foundation::JSONValue;

enum class Kind { todo = 1, habit = 2, event = 3 };

struct Item {
  Kind type = Kind::todo;
  std::string id = {};
  std::string title = {};
  bool isOn = false;
  std::string calid = {};
  foundation::Date starttime = {};
  foundation::Date endtime = {};
  bool allday = false;
  std::optional<std::string> colorHex = {};
};

using Days = std::map<std::string, std::vector<Item>>;

void decode(JSONValue& value, Kind& kind) {
  const std::int64_t raw = value.integer();
  if (raw < 1 || raw > 3) value.fail("not a known type");
  kind = static_cast<Kind>(raw);
}

void decode(JSONValue& value, Item& item) {
  using foundation::ifPresent;
  using foundation::required;
  foundation::decodeObject(value, required("type", item.type), required("id", item.id), required("title", item.title),
                           required("isOn", item.isOn), required("calid", item.calid),
                           required("starttime", item.starttime), required("endtime", item.endtime),
                           required("allday", item.allday), ifPresent("colorHex", item.colorHex));
}

}  // namespace planner

namespace foundation {
namespace {

using planner::Days;

template <class T>
std::string errorOf(const std::string& text) {
  const auto decoded = decodeJSON<T>(text);
  return decoded ? "decoded" : decoded.error().message();
}

const std::string item = R"({"type": 1, "id": "A", "title": "t", "isOn": false, "calid": "c", )"
                         R"("starttime": "2024-03-07T10:00:00Z", "endtime": "2024-03-07T11:00:00Z", "allday": false})";

/// The item with one piece of its text replaced.
std::string itemWith(const std::string& piece, const std::string& replacement) {
  std::string changed = item;
  return changed.replace(changed.find(piece), piece.size(), replacement);
}

std::string repeated(std::string_view text, std::size_t count) {
  std::string result;
  for (std::size_t at = 0; at < count; ++at) result += text;
  return result;
}

std::string nested(std::size_t depth) {
  return repeated("[", depth) + repeated("]", depth);
}

TEST(JSONDecoder, SaysWhereATextDoesNotFit) {
  const auto file = [](const std::string& changed) { return R"({"2026/11/21": [)" + item + ", " + changed + "]}"; };
  const struct {
    std::string text;
    std::string_view wanted;
  } rows[] = {
      {file(itemWith(R"("calid": "c", )", "")), "2026/11/21[1].calid: missing"},
      {file(itemWith(R"("c")", "null")), "2026/11/21[1].calid: null"},
      {file(itemWith(R"("c")", "3")), "2026/11/21[1].calid: not a text"},
      {file(itemWith(R"("type": 1)", R"("type": 1.5)")), "2026/11/21[1].type: not a whole number"},
      {file(itemWith(R"("type": 1)", R"("type": 4)")), "2026/11/21[1].type: not a known type"},
      {file(itemWith(R"("isOn": false)", R"("isOn": 0)")), "2026/11/21[1].isOn: not true or false"},
      {file(itemWith("T10:00:00Z", "T10:00Z")), "2026/11/21[1].starttime: not an ISO 8601 date"},
      {file(itemWith(R"("title": "t")", R"("title": "t", "x": {"y": [1, tru]})")),
       "2026/11/21[1].x.y[1]: bad JSON: not a value"},
      {file("null"), "2026/11/21[1]: null"},
      {file("[]"), "2026/11/21[1]: not an object"},
      {R"({"2026/11/21": {}})", "2026/11/21: not an array"},
      {"[]", "not an object"},
      {"", "bad JSON: "},
      {"{} {}", "bad JSON: "},
  };
  for (const auto& row : rows) {
    // simdjson words its own findings, so only the beginning counts.
    EXPECT_EQ(errorOf<Days>(row.text).substr(0, row.wanted.size()), row.wanted) << row.text;
  }
}

TEST(JSONDecoder, WalksWhatItIgnores) {
  const auto ignored = [](const std::string& value) {
    return errorOf<Days>(R"({"d": [)" + itemWith("\"title\"", "\"x\": " + value + ", \"title\"") + "]}");
  };
  for (const char* value : {"1e999", "-0.0E-7", "123456789012345678901234567890", R"("\u00e9\ud83d\ude00\n")", "null",
                            "true", "[]", "{}", R"([{"a": [1, "b", {}]}, {"a": 1, "a": 2}])", R"({"\u0061": 1})"}) {
    EXPECT_EQ(ignored(value), "decoded") << value;
  }
  for (const char* value :
       {"01",          "-",           "1.",       ".5",          "+1",        "1e",           "1+2",     "0x1",
        "NaN",         "tru",         "nul",      "falsehood",   "1 2",       "[1 2]",        "[1,]",    "[,]",
        "{\"z\":}",    "{\"z\" 1}",   "{z: 1}",   "{\"z\": 1,}", "{,}",       "'a'",          R"("\q")", R"("\u12xy")",
        R"("\ud83d")", R"("\ude00")", "\"a\tb\"", "\"\xFF\"",    "",          R"({"\q": 1})", "[",       "]",
        "{",           "}",           ":",        "1\"a\"",      "true\"a\"", "\"a\"b",       "1\x01",   "1\v"}) {
    EXPECT_NE(ignored(value), "decoded") << value;
  }
}

TEST(JSONDecoder, RefusesEveryBeginningOfAText) {
  const std::string text = R"({"d": [)" + itemWith("\"title\"", R"("x": [{"y": [1, {"z": "\n"}]}], "title")") + "]}";
  ASSERT_EQ(errorOf<Days>(text), "decoded");
  for (std::size_t size = 0; size < text.size(); ++size) {
    EXPECT_NE(errorOf<Days>(text.substr(0, size)), "decoded") << text.substr(0, size);
  }
}

TEST(JSONDecoder, OutlivesDamage) {
  const std::string text = R"({"d": [)" + itemWith("\"title\"", R"("x": [{"y": [1, {"z": "\n"}]}], "title")") + "]}";
  for (std::size_t place = 0; place < text.size(); ++place) {
    for (const char byte : std::string_view("\0\"\\{}[]:,1ne \xC3", 15)) {
      std::string damaged = text;
      damaged[place] = byte;
      EXPECT_TRUE(nlohmann::json::accept(damaged) || !decodeJSON<Days>(damaged)) << damaged;
    }
  }
}

TEST(JSONDecoder, ReadsBlanksAndAMarkAroundOneValue) {
  using Number = std::int64_t;
  for (const char* text : {"5", " \t\r\n5 \n", "\xEF\xBB\xBF 5"}) EXPECT_EQ(decodeJSON<Number>(text), 5) << text;
  for (const std::string text : {"5,", "5 5", "5]", "5]:[5", "5]:", "]", "[5",
                                 "\xEF\xBB\xBF\xEF\xBB\xBF"
                                 "5",
                                 "\xEF\xBB\xBF", "5\v", "// c\n5"}) {
    EXPECT_NE(errorOf<Number>(text), "decoded") << text;
  }
  EXPECT_NE(errorOf<Number>(std::string("5\0", 2)), "decoded");
}

TEST(JSONDecoder, TakesWholeNumbersHoweverTheyAreWritten) {
  const struct {
    const char* text;
    std::optional<std::int64_t> wanted;
  } rows[] = {
      {"-0", 0},
      {"1E+0", 1},
      {"1e5", 100'000},
      {"9.2e18", 9'200'000'000'000'000'000},
      {"1.0000000000000001", 1},
      {"9007199254740993.0", 9'007'199'254'740'993},
      {"9223372036854775807", INT64_MAX},
      {"-9223372036854775808", INT64_MIN},
      {"0e-400", 0},
      {"9223372036854775808", {}},
      {"9223372036854775807.0", {}},
      {"1e-1", {}},
      {"1e400", {}},
      {"1e-400", {}},
      {"00", {}},
      {"-01", {}},
      {"5.", {}},
      {"--1", {}},
      {"\"1\"", {}},
      {"true", {}},
  };
  for (const auto& row : rows) {
    const auto number = decodeJSON<std::int64_t>(row.text);
    EXPECT_EQ(number ? std::optional(*number) : std::nullopt, row.wanted) << row.text;
  }
}

TEST(JSONDecoder, StopsAt512Levels) {
  EXPECT_EQ(errorOf<Days>(R"({"d": [)" + itemWith("\"title\"", "\"x\": " + nested(509) + ", \"title\"") + "]}"),
            "decoded");
  EXPECT_EQ(
      errorOf<Days>(R"({"d": [)" + itemWith("\"title\"", "\"x\": " + nested(510) + ", \"title\"") + "]}").substr(0, 9),
      "d[0].x[0]");
  EXPECT_NE(errorOf<Days>(nested(1'000'000)), "decoded");
  EXPECT_NE(errorOf<Days>(R"({"d": [{"x": )" + nested(1'000'000) + "}]}"), "decoded");
}

TEST(JSONDecoder, TakesTheFirstOfEqualKeys) {
  using Texts = std::map<std::string, std::string>;
  EXPECT_EQ(decodeJSON<Texts>(R"({"a": "1", "\u0061": "2", "b": "3"})").value(), (Texts{{"a", "1"}, {"b", "3"}}));
  EXPECT_EQ(errorOf<Texts>(R"({"a": "1", "a": 2})"), "a: not a text");
  EXPECT_EQ(errorOf<Days>(R"({"d": [)" + itemWith("\"title\"", "\"id\": 5, \"title\"") + "]}"), "decoded");
  const auto days =
      decodeJSON<Days>(R"({"d": [)" + itemWith("\"title\"", R"("colorHex": null, "colorHex": "x", "title")") + "]}");
  EXPECT_EQ(days.value().at("d").at(0).colorHex, std::nullopt);
  EXPECT_EQ(errorOf<Days>(R"({"d": [)" + itemWith("\"title\"", R"("\u0074itle")") + "]}"), "decoded");
}

TEST(JSONDecoder, MayBeUsedWhileItDecodes) {
  std::string inner;
  std::string outer;
  readJSON(R"(["\n outer"])", [&](JSONValue& value) {
    value.forEachElement([&](JSONValue& element) {
      const std::string_view text = element.text();
      inner = decodeJSON<std::string>("\"\\t" + std::string(1000, 'x') + "\"").value();
      outer = text;
    });
  });
  EXPECT_EQ(inner.size(), 1001U);
  EXPECT_EQ(outer, "\n outer");
}

}  // namespace
}  // namespace foundation
