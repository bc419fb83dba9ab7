#include "messages/replies.hpp"

#include "messages/fields.hpp"

namespace messages {

using foundation::JSON;

namespace {

constexpr Texts<Failure::Reason, 2> reasonTexts = {
    {{"usage", Failure::Reason::usage}, {"failed", Failure::Reason::failed}}};

constexpr Texts<FileState, 4> stateTexts = {{{"missing", FileState::missing},
                                             {"unreadable", FileState::unreadable},
                                             {"refused", FileState::refused},
                                             {"decoded", FileState::decoded}}};

constexpr const char* failure = "failure";
constexpr const char* catalogue = "catalogue";
constexpr const char* timeline = "timeline";
constexpr const char* picture = "picture";
constexpr const char* done = "done";
constexpr const char* progress = "progress";
constexpr const char* diagnosis = "diagnosis";
constexpr const char* deviceName = "deviceName";

JSON widgetJSON(const WidgetDescription& widget) {
  return {{"kind", widget.kind},
          {"shortName", widget.shortName},
          {"displayName", widget.displayName},
          {"description", widget.description},
          {"families", JSON(widget.families)}};
}

WidgetDescription widgetFrom(const JSON& json) {
  return {.kind = field<std::string>(json, "kind"),
          .shortName = field<std::string>(json, "shortName"),
          .displayName = field<std::string>(json, "displayName"),
          .description = field<std::string>(json, "description"),
          .families = field<std::vector<std::string>>(json, "families")};
}

JSON sizeJSON(const FamilySize& size) {
  return {{"family", size.family}, {"width", size.width}, {"height", size.height}};
}

FamilySize sizeFrom(const JSON& json) {
  return {.family = field<std::string>(json, "family"),
          .width = field<double>(json, "width"),
          .height = field<double>(json, "height")};
}

JSON fileJSON(const FileDiagnosis& file) {
  return {{"file", file.file}, {"state", textOf(file.state, stateTexts)}, {"modified", JSON(file.modified)},
          {"size", file.size}, {"problems", JSON(file.problems)},         {"consequence", file.consequence}};
}

FileDiagnosis fileFrom(const JSON& json) {
  return {.file = field<std::string>(json, "file"),
          .state = enumField(json, "state", stateTexts),
          .modified = json.at("modified").get<std::optional<foundation::Date>>(),
          .size = json.at("size").get<std::int64_t>(),
          .problems = field<std::vector<std::string>>(json, "problems"),
          .consequence = field<std::string>(json, "consequence")};
}

struct ToJSON {
  JSON operator()(const Failure& reply) const {
    return {{"reply", failure}, {"reason", textOf(reply.reason, reasonTexts)}, {"message", reply.message}};
  }
  JSON operator()(const Catalogue& reply) const {
    JSON widgets = JSON::array();
    for (const WidgetDescription& widget : reply.widgets) widgets.push_back(widgetJSON(widget));
    JSON sizes = JSON::array();
    for (const FamilySize& size : reply.sizes) sizes.push_back(sizeJSON(size));
    return {{"reply", catalogue}, {"widgets", std::move(widgets)}, {"sizes", std::move(sizes)}};
  }
  JSON operator()(const Timeline& reply) const {
    JSON json = {{"reply", timeline}, {"kind", reply.kind}, {"policy", reply.policy}, {"entries", reply.entries}};
    if (!reply.shared.empty()) json["shared"] = reply.shared;
    return json;
  }
  JSON operator()(const Picture&) const { return {{"reply", picture}}; }
  JSON operator()(const Done&) const { return {{"reply", done}}; }
  JSON operator()(const Progress& reply) const {
    return {{"reply", progress}, {"done", reply.done}, {"total", reply.total}};
  }
  JSON operator()(const Diagnosis& reply) const {
    JSON files = JSON::array();
    for (const FileDiagnosis& file : reply.files) files.push_back(fileJSON(file));
    return {{"reply", diagnosis}, {"hasContainer", reply.hasContainer}, {"files", std::move(files)}};
  }
  JSON operator()(const DeviceName& reply) const { return {{"reply", deviceName}, {"name", reply.name}}; }
};

}  // namespace

void to_json(JSON& json, const Reply& reply) {
  json = std::visit(ToJSON(), reply);
}

void from_json(const JSON& json, Reply& reply) {
  const auto name = field<std::string>(json, "reply");
  if (name == failure) {
    reply = Failure{.reason = enumField(json, "reason", reasonTexts), .message = field<std::string>(json, "message")};
  } else if (name == catalogue) {
    Catalogue read;
    for (const JSON& widget : field<std::vector<JSON>>(json, "widgets")) read.widgets.push_back(widgetFrom(widget));
    for (const JSON& size : field<std::vector<JSON>>(json, "sizes")) read.sizes.push_back(sizeFrom(size));
    reply = std::move(read);
  } else if (name == timeline) {
    reply = Timeline{.kind = field<std::string>(json, "kind"),
                     .policy = json.at("policy"),
                     .entries = field<std::vector<JSON>>(json, "entries"),
                     .shared = json.value("shared", std::vector<JSON>())};
  } else if (name == picture) {
    reply = Picture{};
  } else if (name == done) {
    reply = Done{};
  } else if (name == progress) {
    reply = Progress{.done = integerField(json, "done"), .total = integerField(json, "total")};
  } else if (name == diagnosis) {
    Diagnosis read{.hasContainer = json.at("hasContainer").get<bool>()};
    for (const JSON& file : field<std::vector<JSON>>(json, "files")) read.files.push_back(fileFrom(file));
    reply = std::move(read);
  } else if (name == deviceName) {
    reply = DeviceName{.name = field<std::string>(json, "name")};
  } else {
    failField(json, "reply", "none of the known ones");
  }
}

}  // namespace messages
