#include <gtest/gtest.h>

#include "foundation/iso8601.hpp"
#include "messages/replies.hpp"
#include "messages/requests.hpp"

namespace messages {
namespace {

using foundation::JSON;

const World world = {.now = foundation::parseMoment("2026-11-21T08:00:00.250Z").value(),
                     .timeZone = "Europe/Berlin",
                     .locale = "de_DE",
                     .container = "/tmp/ü",
                     .screen = "320x568",
                     .systemVersion = 16,
                     .appearance = "dark",
                     .isRedacted = true,
                     .plannerURL = "planner://today"};

TEST(Envelope, SurvivesTheWire) {
  const Request requests[] = {
      DescribeCatalogue{},
      AskProvider{.operation = ProviderOperation::snapshot, .kind = "tasks"},
      AskProvider{.operation = ProviderOperation::placeholder, .kind = ""},
      DrawEntry{.kind = "quote",
                .family = "systemSmall",
                .entry = {{"date", "2026-11-21T08:00:00Z"}, {"z", 1}, {"a", {1.5, nullptr}}},
                .format = PictureFormat::text,
                .scale = 1.5},
      DrawEntry{.format = PictureFormat::json},
      PerformIntent{.intent = "TaskIntent", .parameters = {{"id", "é\"/"}, {"date", nullptr}}},
      DiagnoseContainer{},
      NameDevice{},
      NameDevice{.identifier = ""},
      NameDevice{.identifier = "iPhone9,4"},
  };
  for (const Request& request : requests) {
    const Envelope envelope = {.world = world, .request = request};
    const std::string wire = JSON(envelope).dump();
    EXPECT_EQ(JSON::parse(wire).get<Envelope>(), envelope) << wire;
  }
}

TEST(Envelope, LooksOnTheWireAsDocumented) {
  const Envelope envelope = {.world = world, .request = AskProvider{.kind = "tasks"}};
  EXPECT_EQ(JSON(envelope).dump(),
            R"({"request":"askProvider","operation":"timeline","kind":"tasks","world":{)"
            R"("now":"2026-11-21T08:00:00.250Z","timeZone":"Europe/Berlin","locale":"de_DE","container":"/tmp/ü",)"
            R"("screen":"320x568","systemVersion":16,"appearance":"dark","isRedacted":true,)"
            R"("plannerURL":"planner://today"}})");
}

TEST(Envelope, RefusesWhatIsNoRequest) {
  const Envelope drawing = {.world = world, .request = DrawEntry{.kind = "quote", .entry = JSON::object()}};
  const struct {
    const char* pointer;
    JSON value;
  } changes[] = {
      {"/request", "dance"},
      {"/request", 5},
      {"/kind", nullptr},
      {"/format", "gif"},
      {"/scale", "2"},
      {"/scale", true},
      {"/world", JSON::array()},
      {"/world/now", "yesterday"},
      {"/world/now", 1},
      {"/world/systemVersion", 17.5},
      {"/world/systemVersion", true},
      {"/world/systemVersion", 5'000'000'000},
      {"/world/systemVersion", UINT64_MAX},
      {"/world/screen", JSON::object()},
      {"/world/isRedacted", 1},
      {"/world/plannerURL", 5},
  };
  for (const auto& change : changes) {
    JSON json = drawing;
    json[JSON::json_pointer(change.pointer)] = change.value;
    EXPECT_THROW(json.get<Envelope>(), JSON::exception) << change.pointer << " " << change.value;
  }
  for (const char* name : {"request", "world", "kind", "family", "entry", "format", "scale"}) {
    JSON json = drawing;
    json.erase(name);
    EXPECT_THROW(json.get<Envelope>(), JSON::exception) << "without " << name;
  }
  EXPECT_THROW(JSON(5).get<Envelope>(), JSON::exception);
}

TEST(Reply, SurvivesTheWireButForThePicturesBytes) {
  const Reply replies[] = {
      Failure{.reason = Failure::Reason::usage, .message = "no such kind"},
      Catalogue{},
      Catalogue{
          .widgets = {{.kind = "K", .shortName = "k", .displayName = "D", .description = "d", .families = {"a", "b"}},
                      {}}},
      Timeline{
          .kind = "tasks", .policy = {{"after", "2026-11-21T08:00:00Z"}}, .entries = {{{"date", "x"}}, {{"n", 1}}}},
      Timeline{},
      Timeline{.entries = {JSON::array({1})}},
      Picture{},
      Done{},
      DeviceName{.name = "iPhone 7 Plus"},
      Diagnosis{},
      Diagnosis{.hasContainer = true,
                .files = {{.file = "a.json",
                           .state = FileState::refused,
                           .modified = world.now,
                           .size = INT64_MAX,
                           .problems = {"a", "ü"},
                           .consequence = "c"},
                          {.state = FileState::unreadable},
                          {}}},
  };
  for (const Reply& reply : replies) {
    const std::string wire = JSON(reply).dump();
    EXPECT_EQ(JSON::parse(wire).get<Reply>(), reply) << wire;
  }
  EXPECT_EQ(JSON(Reply(Picture{.bytes = "png"})).dump(), R"({"reply":"picture"})");
}

TEST(Reply, RefusesWhatIsNone) {
  for (const char* wire :
       {R"({})", R"([])", R"({"reply": "song"})", R"({"reply": "failure", "reason": "mood", "message": ""})",
        R"({"reply": "failure", "reason": "usage"})", R"({"reply": "catalogue", "widgets": {}})",
        R"({"reply": "catalogue", "widgets": [{"kind": "K"}]})", R"({"reply": "catalogue", "widgets": [5]})",
        R"({"reply": "timeline", "kind": "K", "policy": "never", "entries": 5})",
        R"({"reply": "diagnosis", "hasContainer": 1, "files": []})",
        R"({"reply": "diagnosis", "hasContainer": true, "files": [{"file": "a.json", "state": "odd"}]})"}) {
    EXPECT_THROW(JSON::parse(wire).get<Reply>(), JSON::exception) << wire;
  }
}

}  // namespace
}  // namespace messages
