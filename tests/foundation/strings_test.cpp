#include "foundation/strings.hpp"

#include <gtest/gtest.h>

#include <limits>

#include "support/recorded_cases.hpp"

namespace foundation {
namespace {

TEST(Strings, ChangeCaseTheSameInEveryLocale) {
  const struct {
    const char *text, *upper, *lower;
  } rows[] = {
      {"", "", ""},
      {"Mood i [z] 1", "MOOD I [Z] 1", "mood i [z] 1"},
      {"straße", "STRASSE", "straße"},
      {"ıİ", "Iİ", "ıi̇"},
      {"ﬁŉ", "FIʼN", "ﬁŉ"},
      {"Μάιος", "ΜΆΙΟΣ", "μάιος"},
      {"5月", "5月", "5月"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(uppercased(row.text), row.upper);
    EXPECT_EQ(lowercased(row.text), row.lower);
  }
  EXPECT_EQ(uppercased("a\xFF"), "A\uFFFD") << "damaged text is replaced, not refused";
}

TEST(Strings, AreFilledAtTheirFirstPlaceholder) {
  EXPECT_EQ(filled("%lld of %lld", 1234567), "1234567 of %lld");
  EXPECT_EQ(filled("noch %lld", -3), "noch -3");
  EXPECT_EQ(filled("100%", 3), "100%");
}

TEST(Strings, ReadDecimalIntegersAsRecorded) {
  for (const auto& row : support::recordedCases("platform/integers.json")) {
    const auto value = decimalInteger(row["text"].get<std::string>());
    EXPECT_EQ(value ? nlohmann::json(*value) : nlohmann::json(), row["value"]) << row["text"];
  }
  EXPECT_EQ(decimalInteger("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
  for (const char* text : {"-9223372036854775809", "+-5", "-+5", "++5", "5-"}) {
    EXPECT_EQ(decimalInteger(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace foundation
