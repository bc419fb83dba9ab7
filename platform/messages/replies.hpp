#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "foundation/json.hpp"
#include "messages/shared_values.hpp"

namespace messages {

/// One widget kind as the gallery shows it.
struct WidgetDescription {
  std::string kind = {};
  std::string shortName = {};
  std::string displayName = {};
  std::string description = {};
  std::vector<std::string> families = {};
  friend bool operator==(const WidgetDescription&, const WidgetDescription&) = default;
};

/// How large the widgets of a family are on the world's screen, in points.
struct FamilySize {
  std::string family = {};
  double width = 0;
  double height = 0;
  friend bool operator==(const FamilySize&, const FamilySize&) = default;
};

struct Catalogue {
  std::vector<WidgetDescription> widgets = {};  ///< in the gallery's order
  std::vector<FamilySize> sizes = {};           ///< of every family
  friend bool operator==(const Catalogue&, const Catalogue&) = default;
};

/// Entries and when to ask again.
struct Timeline {
  std::string kind = {};                       ///< the kind identifier
  foundation::JSON policy = "never";           ///< "atEnd", "never" or {"after": MOMENT}
  std::vector<foundation::JSON> entries = {};  ///< each with a "date": a MOMENT
  std::vector<foundation::JSON> shared = {};   ///< values that entries refer to, see shared_values.hpp

  /// An entry with its shared values in their places.
  foundation::JSON wholeEntry(std::size_t index) const { return withSharedValues(entries[index], shared); }

  friend bool operator==(const Timeline&, const Timeline&) = default;
};

/// A drawn entry. The bytes (PNG, text or JSON, as asked) travel as the frame's payload, not in the header.
struct Picture {
  std::string bytes = {};
  friend bool operator==(const Picture&, const Picture&) = default;
};

/// An action has run.
struct Done {
  friend bool operator==(const Done&, const Done&) = default;
};

/// A long answer is on its way; not an answer itself.
struct Progress {
  int done = 0;
  int total = 0;
  friend bool operator==(const Progress&, const Progress&) = default;
};

enum class FileState {
  missing,     ///< not there, which is no problem by itself
  unreadable,  ///< there, but the system does not give it
  refused,     ///< read, but it does not decode
  decoded,
};

/// What is to be said of one shared file.
struct FileDiagnosis {
  std::string file = {};  ///< below the container
  FileState state = FileState::missing;
  std::optional<foundation::Date> modified = std::nullopt;  ///< absent where it cannot be told
  std::int64_t size = 0;                                    ///< bytes
  std::vector<std::string> problems = {};                   ///< each a line; empty where all is well
  std::string consequence = {};                             ///< what follows where the file is not decoded
  friend bool operator==(const FileDiagnosis&, const FileDiagnosis&) = default;
};

struct Diagnosis {
  bool hasContainer = false;
  std::vector<FileDiagnosis> files = {};
  friend bool operator==(const Diagnosis&, const Diagnosis&) = default;
};

/// What a device is called.
struct DeviceName {
  std::string name = {};
  friend bool operator==(const DeviceName&, const DeviceName&) = default;
};

/// Why a request was not answered.
struct Failure {
  /// usage: the request asks for something that does not exist; the message lists what does.
  enum class Reason { usage, failed };
  Reason reason = Reason::failed;
  std::string message = {};
  friend bool operator==(const Failure&, const Failure&) = default;
};

using Reply = std::variant<Failure, Catalogue, Timeline, Picture, Done, Progress, Diagnosis, DeviceName>;

/// The header of a reply: {"reply": NAME, …its fields…}. A Picture's bytes are left out.
void to_json(foundation::JSON& json, const Reply& reply);
/// Throws foundation::JSON::exception where a field is missing or of another type.
void from_json(const foundation::JSON& json, Reply& reply);

}  // namespace messages
