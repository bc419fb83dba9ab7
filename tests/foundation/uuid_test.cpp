#include "foundation/uuid.hpp"

#include <gtest/gtest.h>

#include "support/recorded_cases.hpp"

namespace foundation {
namespace {

std::string printed(const std::optional<UUID>& uuid) {
  return uuid ? uuid->string() : "refused";
}

TEST(UUID, ReadsTheRecordedTexts) {
  for (const auto& row : support::recordedCases("platform/uuids.json")) {
    const auto text = row["text"].get<std::string>();
    EXPECT_EQ(printed(UUID::parse(text)), row["uuid"].is_null() ? "refused" : row["uuid"].get<std::string>()) << text;
  }
}

TEST(UUID, RefusesSignsBlanksAndBytesBehindAZero) {
  EXPECT_EQ(printed(UUID::parse("47FC816A-C16E-4284-810F-AA4003BA33+8")), "refused");
  EXPECT_EQ(printed(UUID::parse("47FC816A-C16E-4284-810F-AA4003BA33 8")), "refused");
  EXPECT_EQ(printed(UUID::parse(std::string("47FC816A-C16E-4284-810F-AA4003BA33DB\0", 37))), "refused");
}

TEST(UUID, IsOfVersion4WhateverTheRandomBits) {
  EXPECT_EQ(UUID::random([] { return ~std::uint64_t{0}; }).string(), "FFFFFFFF-FFFF-4FFF-BFFF-FFFFFFFFFFFF");
  EXPECT_EQ(UUID::random([] { return std::uint64_t{0}; }).string(), "00000000-0000-4000-8000-000000000000");
  const RandomSource random = systemRandomSource();
  EXPECT_NE(UUID::random(random), UUID::random(random));
}

}  // namespace
}  // namespace foundation
