#include "widgetkit/extension_service.hpp"

#include <gtest/gtest.h>

#include "clock_bundle.hpp"

namespace widgetkit {
namespace {

using foundation::JSON;
using messages::AskProvider;
using messages::Catalogue;
using messages::DrawEntry;
using messages::Failure;
using messages::Picture;
using messages::PictureFormat;
using messages::ProviderOperation;
using messages::Reply;
using messages::World;

const World world{.now = JSON("2026-11-21T08:00:00Z").get<foundation::Date>()};
const JSON entry{{"date", "2026-11-21T08:00:00Z"}, {"word", "noon"}};

Reply answered(const messages::Request& request, const World& in = world) {
  ExtensionService service = clockService();
  return service.answer({.world = in, .request = request});
}

std::string bytesOf(const DrawEntry& request, const World& in = world) {
  const Reply reply = answered(request, in);
  if (const auto* failure = std::get_if<Failure>(&reply)) ADD_FAILURE() << failure->message;
  const auto* picture = std::get_if<Picture>(&reply);
  return picture != nullptr ? picture->bytes : "";
}

JSON documentOf(DrawEntry request, const World& in = world) {
  request.format = PictureFormat::json;
  return JSON::parse(bytesOf(request, in), nullptr, false);
}

TEST(ExtensionService, DescribesItsWidgets) {
  const auto catalogue = std::get<Catalogue>(answered(messages::DescribeCatalogue{}));
  ASSERT_EQ(catalogue.widgets.size(), 2U);
  EXPECT_EQ(catalogue.widgets[0], (messages::WidgetDescription{.kind = "Clock_Widget",
                                                               .shortName = "clock",
                                                               .displayName = "Clock",
                                                               .description = "Tells the time",
                                                               .families = {"systemSmall", "accessoryInline"}}));
  World old = world;
  old.systemVersion = 16;
  EXPECT_EQ(std::get<Catalogue>(answered(messages::DescribeCatalogue{}, old)).widgets[0].displayName, "Old clock");
}

TEST(ExtensionService, AsksTheProvider) {
  const struct {
    ProviderOperation operation;
    const char* wanted;
  } rows[] = {
      {ProviderOperation::placeholder,
       R"({"reply":"timeline","kind":"Clock_Widget","policy":"never","entries":[{"date":"2026-11-21T08:00:00Z","word":"soon"}]})"},
      {ProviderOperation::snapshot,
       R"({"reply":"timeline","kind":"Clock_Widget","policy":"never","entries":[{"date":"2026-11-21T08:00:00Z","word":"now"}]})"},
      {ProviderOperation::timeline,
       R"({"reply":"timeline","kind":"Clock_Widget","policy":{"after":"2026-11-21T09:00:00Z"},"entries":[{"date":"2026-11-21T08:00:00Z","word":"one"},{"date":"2026-11-21T09:00:00Z","word":"two"}]})"},
  };
  for (const auto& row : rows) {
    for (const char* kind : {"Clock_Widget", "clock"}) {
      EXPECT_EQ(JSON(answered(AskProvider{.operation = row.operation, .kind = kind})).dump(), row.wanted);
    }
  }
}

TEST(ExtensionService, DrawsAnEntryInEveryFormat) {
  const DrawEntry request{.kind = "clock", .family = "systemSmall", .entry = entry};
  const std::string png = bytesOf(request);
  EXPECT_TRUE(png.starts_with("\x89PNG\r\n"));
  // Width and height stand behind the first chunk's name, most significant byte first: 2 x 158 points.
  EXPECT_EQ(png.substr(16, 8), std::string("\0\0\x01\x3c\0\0\x01\x3c", 8));

  DrawEntry text = request;
  text.format = PictureFormat::text;
  EXPECT_EQ(bytesOf(text), "[x] noon\n");

  const JSON document = documentOf(request);
  std::string members;
  for (const auto& [name, value] : document.items()) members += name + " ";
  EXPECT_EQ(members, "kind family width height colorScheme drawn meaning ");
  EXPECT_EQ(document["kind"], "Clock_Widget");
  EXPECT_EQ(document["family"], "systemSmall");
  EXPECT_EQ(document["width"].dump(), "158");
  EXPECT_EQ(document["colorScheme"], "light");
  EXPECT_EQ(document["drawn"][0]["frame"].dump(), "[0,0,158,158]");
  EXPECT_EQ(document["meaning"][0]["label"], "noon");
  EXPECT_EQ(
      documentOf({.kind = "clock", .family = "systemMedium", .entry = entry}, {.screen = "768x1024"})["width"].dump(),
      "305.5");
}

TEST(ExtensionService, SaysWhereTapsLead) {
  DrawEntry request{.kind = "clock", .family = "systemSmall", .entry = entry};
  EXPECT_FALSE(documentOf(request).contains("url"));
  request.entry["word"] = "link";
  const JSON document = documentOf(request);
  EXPECT_EQ(document["url"], "https://a/");
  EXPECT_EQ(document["meaning"][0]["url"], "https://a/b");
  request.format = PictureFormat::text;
  EXPECT_EQ(bytesOf(request), "go <https://a/b>\n<https://a/>\n");
}

TEST(ExtensionService, FollowsTheDevice) {
  World dark = world;
  dark.appearance = "dark";
  const DrawEntry request{.kind = "clock", .family = "systemSmall", .entry = entry};
  EXPECT_EQ(documentOf(request, dark)["colorScheme"], "dark");
  EXPECT_EQ(documentOf(request, dark)["drawn"][1]["color"], "#FFFFFF");
  // A family that the kind does not offer is drawn all the same.
  EXPECT_EQ(documentOf({.kind = "clock", .family = "accessoryCircular", .entry = entry})["width"], 72);
}

/// The width that a text of many words takes of a small widget, 158 points wide.
double widthTaken(const std::string& kind, const std::string& family, int systemVersion) {
  World device = world;
  device.systemVersion = systemVersion;
  JSON wordy = entry;
  wordy["word"] = std::string(200, 'i');
  return documentOf({.kind = kind, .family = family, .entry = wordy}, device)["drawn"].back()["frame"][2].get<double>();
}

TEST(ExtensionService, LeavesMarginsWhereTheSystemDoes) {
  const double within = 158 - 2 * 16;
  EXPECT_LE(widthTaken("clock", "systemSmall", 17), within);
  EXPECT_GT(widthTaken("clock", "systemSmall", 16), within);
  EXPECT_GT(widthTaken("bare", "systemSmall", 17), within);
  EXPECT_GT(widthTaken("clock", "accessoryRectangular", 17), 160 - 2 * 16);
}

TEST(ExtensionService, SaysWhyItDoesNotAnswer) {
  using enum Failure::Reason;
  JSON undrawable = entry;
  undrawable["word"] = "undrawable";
  const struct {
    messages::Request request;
    Failure::Reason reason;
    const char* message;
  } rows[] = {
      {AskProvider{.kind = "calendar"}, usage,
       "kind 'calendar' is unknown; use clock (Clock_Widget), bare (Bare_Widget)"},
      {messages::PerformIntent{.intent = "Smash", .parameters = {{"turns", 1}}}, usage, "action 'Smash' is unknown"},
      {messages::PerformIntent{.intent = "Wind", .parameters = JSON::object()}, failed, "does not fit"},
      {messages::DrawSheet{.format = PictureFormat::text}, usage, "a sheet is a picture"},
      {AskProvider{.kind = ""}, usage, "kind '' is unknown"},
      {DrawEntry{.kind = "Clock", .family = "systemSmall", .entry = entry}, usage, "kind 'Clock' is unknown"},
      {DrawEntry{.kind = "clock", .family = "huge", .entry = entry}, usage,
       "family 'huge' is unknown; use systemSmall, "},
      {DrawEntry{.kind = "clock", .family = "systemSmall", .entry = entry, .scale = 0}, usage, "scale"},
      {DrawEntry{.kind = "clock", .family = "systemSmall", .entry = entry, .scale = 17}, usage, "scale"},
      {DrawEntry{.kind = "clock", .family = "systemSmall", .entry = entry, .scale = std::nan("")}, usage, "scale"},
      {DrawEntry{.kind = "clock", .family = "systemSmall", .entry = JSON::object()}, failed, "does not fit"},
      {DrawEntry{.kind = "clock", .family = "systemSmall", .entry = JSON("word")}, failed, "does not fit"},
      {DrawEntry{.kind = "clock", .family = "systemSmall", .entry = undrawable}, failed, "no such hour"},
  };
  for (const auto& row : rows) {
    const Reply reply = answered(row.request);
    const auto* failure = std::get_if<Failure>(&reply);
    ASSERT_NE(failure, nullptr) << row.message;
    EXPECT_EQ(failure->reason, row.reason) << row.message;
    EXPECT_NE(failure->message.find(row.message), std::string::npos) << failure->message;
  }
}

}  // namespace
}  // namespace widgetkit
