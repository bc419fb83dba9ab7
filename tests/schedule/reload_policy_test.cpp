#include "schedule/reload_policy.hpp"

#include <gtest/gtest.h>

#include "schedule/virtual_host.hpp"

namespace host {
namespace {

TEST(ReloadPolicy, IsReadFromAnAnswerAndNeverWhereUnknown) {
  struct Case {
    const char* json;
    ReloadPolicy policy;
  };
  const Case cases[] = {
      {R"("never")", Never{}},
      {R"("atEnd")", AtEnd{}},
      {R"({"after": "2026-11-22T00:00:00Z"})", After{.date = moment("2026-11-22T00:00:00Z")}},
      {R"({"after": "2026-11-22T00:00:00.125Z"})", After{.date = moment("2026-11-22T00:00:00.125Z")}},
      {R"("sometimes")", Never{}},
      {R"({"after": "soon"})", Never{}},
      {R"({"after": 1795305600})", Never{}},
      {R"({"before": "2026-11-22T00:00:00Z"})", Never{}},
      {"null", Never{}},
      {R"(["atEnd"])", Never{}},
  };
  for (const auto& [json, policy] : cases) EXPECT_EQ(reloadPolicy(foundation::JSON::parse(json)), policy) << json;
}

}  // namespace
}  // namespace host
