#pragma once

#include <optional>
#include <string>
#include <variant>

#include "foundation/date.hpp"
#include "foundation/json.hpp"
#include "messages/world.hpp"

namespace messages {

/// What does the extension offer? Answered by a Catalogue.
struct DescribeCatalogue {
  friend bool operator==(const DescribeCatalogue&, const DescribeCatalogue&) = default;
};

/// The three operations of a timeline provider.
enum class ProviderOperation { placeholder, snapshot, timeline };

/// Entries of one kind. Answered by a Timeline (placeholder and snapshot: one entry, policy "never").
struct AskProvider {
  ProviderOperation operation = ProviderOperation::timeline;
  std::string kind = {};  ///< a kind identifier or its short name
  friend bool operator==(const AskProvider&, const AskProvider&) = default;
};

/// How a picture is wanted.
enum class PictureFormat {
  png,
  svg,
  pdf,
  text,  ///< the meaning as plain text, one line an element
  json,  ///< the placed tree and its meaning
};

/// One entry of a kind, drawn for a family at the world's current moment. Answered by a Picture.
struct DrawEntry {
  std::string kind = {};
  std::string family = {};
  foundation::JSON entry = {};  ///< as the Timeline carried it
  PictureFormat format = PictureFormat::png;
  double scale = 2;  ///< pixels per point
  friend bool operator==(const DrawEntry&, const DrawEntry&) = default;
};

/// Every kind in every family that it offers, each at its entry for the world's current moment, on one picture (PNG,
/// SVG or PDF). Answered by a Picture, with a Progress before each widget.
struct DrawSheet {
  PictureFormat format = PictureFormat::png;
  double scale = 2;  ///< pixels per point
  friend bool operator==(const DrawSheet&, const DrawSheet&) = default;
};

/// Runs an action as a tap on a control does. Answered by a Done.
struct PerformIntent {
  std::string intent = {};           ///< the action's name, as a control's meaning carries it
  foundation::JSON parameters = {};  ///< an object: each parameter's value by its title
  friend bool operator==(const PerformIntent&, const PerformIntent&) = default;
};

/// In what state are the files that the planner shares? Answered by a Diagnosis.
struct DiagnoseContainer {
  friend bool operator==(const DiagnoseContainer&, const DiagnoseContainer&) = default;
};

/// What is a device of that model called, or the one that the extension runs on? Answered by a DeviceName.
struct NameDevice {
  std::optional<std::string> identifier = std::nullopt;  ///< as a kernel reports it: "iPhone9,4"
  friend bool operator==(const NameDevice&, const NameDevice&) = default;
};

using Request =
    std::variant<DescribeCatalogue, AskProvider, DrawEntry, DrawSheet, PerformIntent, DiagnoseContainer, NameDevice>;

/// A request and the world in which it is answered. On the wire: {"request": NAME, …its fields…, "world": {…}}.
struct Envelope {
  World world = {};
  Request request = {};
  friend bool operator==(const Envelope&, const Envelope&) = default;
};

void to_json(foundation::JSON& json, const Envelope& envelope);
/// Throws foundation::JSON::exception where a field is missing or of another type.
void from_json(const foundation::JSON& json, Envelope& envelope);

}  // namespace messages
