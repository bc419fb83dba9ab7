#include <gtest/gtest.h>

#include "widgetkit/timeline.hpp"

namespace widgetkit {
namespace {

TEST(TimelineReloadPolicy, PrintsAsJSON) {
  const foundation::Date date = foundation::JSON("2026-11-21T08:00:00Z").get<foundation::Date>();
  EXPECT_EQ(TimelineReloadPolicy::atEnd().json().dump(), R"("atEnd")");
  EXPECT_EQ(TimelineReloadPolicy::never().json().dump(), R"("never")");
  EXPECT_EQ(TimelineReloadPolicy::after(date).json().dump(), R"({"after":"2026-11-21T08:00:00Z"})");
  EXPECT_EQ(TimelineReloadPolicy::after(date), TimelineReloadPolicy::after(date));
  EXPECT_NE(TimelineReloadPolicy::after(date), TimelineReloadPolicy::atEnd());
}

}  // namespace
}  // namespace widgetkit
