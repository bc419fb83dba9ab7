#include "foundation/json_decoder.hpp"

#include <cstring>
#include <memory>

#include "foundation/iso8601.hpp"

namespace foundation {
namespace {

/// The parser and the copy of the text that it needs room behind. Kept for the thread's next text.
struct Workspace {
  simdjson::ondemand::parser parser;
  std::string text = {};
};

constexpr std::size_t largestKeptText = 8 * 1024 * 1024;

thread_local std::unique_ptr<Workspace> spareWorkspace;

/// Borrows the thread's workspace, so that a text may be decoded while another one is.
class WorkspaceLease {
 public:
  WorkspaceLease() : workspace_(spareWorkspace ? std::move(spareWorkspace) : std::make_unique<Workspace>()) {}
  ~WorkspaceLease() {
    if (workspace_->text.capacity() <= largestKeptText) spareWorkspace = std::move(workspace_);
  }
  WorkspaceLease(const WorkspaceLease&) = delete;
  WorkspaceLease& operator=(const WorkspaceLease&) = delete;

  Workspace* operator->() { return workspace_.get(); }

 private:
  std::unique_ptr<Workspace> workspace_;
};

std::string_view withoutByteOrderMark(std::string_view bytes) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  return bytes.starts_with(mark) ? bytes.substr(mark.size()) : bytes;
}

[[noreturn]] void failBadJSON(std::string_view what) {
  throw DecodingError{.reason = "bad JSON: " + std::string(what)};
}

void check(simdjson::error_code error) {
  if (error != simdjson::SUCCESS) failBadJSON(simdjson::error_message(error));
}

}  // namespace

// The text is read as the only element of an array, so that a bare number is a value like any other. The colon stops
// the search of a container that the text leaves open before it passes the end; the last bracket is looked at first.
void readJSON(std::string_view bytes, const std::function<void(JSONValue)>& body) {
  constexpr std::string_view before = "[";
  constexpr std::string_view behind = "]:]";
  const std::string_view text = withoutByteOrderMark(bytes);

  WorkspaceLease workspace;
  std::string& padded = workspace->text;
  padded.reserve(before.size() + text.size() + behind.size() + simdjson::SIMDJSON_PADDING);
  padded.assign(before).append(text).append(behind);

  simdjson::ondemand::document document;
  check(workspace->parser.iterate(simdjson::padded_string_view(padded, padded.capacity())).get(document));
  simdjson::ondemand::array array;
  check(document.get_array().get(array));
  std::size_t count = 0;
  for (auto result : array) {
    simdjson::ondemand::value value;
    check(std::move(result).get(value));
    if (++count > 1) failBadJSON("more than one value");
    body(JSONValue(value, 0));
  }
  if (count == 0) failBadJSON("empty");
  const char* end = nullptr;
  check(document.current_location().get(end));
  if (end != padded.data() + padded.size() - (behind.size() - 1)) failBadJSON("something behind the value");
}

void decode(JSONValue value, std::string& text) {
  text.assign(value.text());
}

void decode(JSONValue value, bool& boolean) {
  boolean = value.boolean();
}

void decode(JSONValue value, std::int64_t& integer) {
  integer = value.integer();
}

void decode(JSONValue value, Date& date) {
  const auto parsed = parseISO8601(value.text());
  if (!parsed) value.fail("not an ISO 8601 date");
  date = *parsed;
}

}  // namespace foundation
