#include "messages/requests.hpp"

#include "messages/fields.hpp"

namespace messages {

using foundation::JSON;

namespace {

constexpr Texts<ProviderOperation, 3> operationTexts = {{{"placeholder", ProviderOperation::placeholder},
                                                         {"snapshot", ProviderOperation::snapshot},
                                                         {"timeline", ProviderOperation::timeline}}};

constexpr Texts<PictureFormat, 5> formatTexts = {{{"png", PictureFormat::png},
                                                  {"svg", PictureFormat::svg},
                                                  {"pdf", PictureFormat::pdf},
                                                  {"text", PictureFormat::text},
                                                  {"json", PictureFormat::json}}};

constexpr const char* describeCatalogue = "describeCatalogue";
constexpr const char* askProvider = "askProvider";
constexpr const char* drawEntry = "drawEntry";
constexpr const char* drawSheet = "drawSheet";
constexpr const char* performIntent = "performIntent";
constexpr const char* diagnoseContainer = "diagnoseContainer";
constexpr const char* nameDevice = "nameDevice";

struct ToJSON {
  JSON operator()(const DescribeCatalogue&) const { return {{"request", describeCatalogue}}; }
  JSON operator()(const AskProvider& request) const {
    return {{"request", askProvider}, {"operation", textOf(request.operation, operationTexts)}, {"kind", request.kind}};
  }
  JSON operator()(const DrawEntry& request) const {
    return {{"request", drawEntry},
            {"kind", request.kind},
            {"family", request.family},
            {"entry", request.entry},
            {"format", textOf(request.format, formatTexts)},
            {"scale", request.scale}};
  }
  JSON operator()(const DrawSheet& request) const {
    return {{"request", drawSheet}, {"format", textOf(request.format, formatTexts)}, {"scale", request.scale}};
  }
  JSON operator()(const PerformIntent& request) const {
    return {{"request", performIntent}, {"intent", request.intent}, {"parameters", request.parameters}};
  }
  JSON operator()(const DiagnoseContainer&) const { return {{"request", diagnoseContainer}}; }
  JSON operator()(const NameDevice& request) const {
    return {{"request", nameDevice}, {"identifier", JSON(request.identifier)}};
  }
};

Request requestFrom(const JSON& json) {
  const auto name = field<std::string>(json, "request");
  if (name == describeCatalogue) return DescribeCatalogue{};
  if (name == askProvider) {
    return AskProvider{.operation = enumField(json, "operation", operationTexts),
                       .kind = field<std::string>(json, "kind")};
  }
  if (name == drawEntry) {
    return DrawEntry{.kind = field<std::string>(json, "kind"),
                     .family = field<std::string>(json, "family"),
                     .entry = json.at("entry"),
                     .format = enumField(json, "format", formatTexts),
                     .scale = field<double>(json, "scale")};
  }
  if (name == drawSheet) {
    return DrawSheet{.format = enumField(json, "format", formatTexts), .scale = field<double>(json, "scale")};
  }
  if (name == performIntent) {
    return PerformIntent{.intent = field<std::string>(json, "intent"), .parameters = json.at("parameters")};
  }
  if (name == diagnoseContainer) return DiagnoseContainer{};
  if (name == nameDevice) return NameDevice{.identifier = json.at("identifier").get<std::optional<std::string>>()};
  failField(json, "request", "none of the known ones");
}

}  // namespace

void to_json(JSON& json, const Envelope& envelope) {
  json = std::visit(ToJSON(), envelope.request);
  json["world"] = envelope.world;
}

void from_json(const JSON& json, Envelope& envelope) {
  envelope = {.world = json.at("world").get<World>(), .request = requestFrom(json)};
}

}  // namespace messages
