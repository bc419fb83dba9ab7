#include "foundation/json_decoder.hpp"

#include <memory>

#include "foundation/file_manager.hpp"
#include "foundation/iso8601.hpp"

namespace foundation {
namespace {

constexpr std::size_t largestKeptParser = 8 * 1024 * 1024;  // bytes of text

thread_local std::unique_ptr<simdjson::ondemand::parser> spareParser;

/// Borrows the thread's parser, so that a text may be decoded while another one is.
class ParserLease {
 public:
  ParserLease() : parser_(spareParser ? std::move(spareParser) : std::make_unique<simdjson::ondemand::parser>()) {}
  ~ParserLease() {
    if (parser_->capacity() <= largestKeptParser) spareParser = std::move(parser_);
  }
  ParserLease(const ParserLease&) = delete;
  ParserLease& operator=(const ParserLease&) = delete;

  simdjson::ondemand::parser* operator->() { return parser_.get(); }

 private:
  std::unique_ptr<simdjson::ondemand::parser> parser_;
};

[[noreturn]] void failBadJSON(std::string_view what) {
  throw DecodingError{.reason = "bad JSON: " + std::string(what)};
}

void check(simdjson::error_code error) {
  if (error != simdjson::SUCCESS) failBadJSON(simdjson::error_message(error));
}

}  // namespace

// The text is read as the only element of an array, so that a bare number is a value like any other. The colon stops
// the search of a container that the text leaves open before it passes the end; the last bracket is looked at first.
void readJSON(std::string text, const std::function<void(JSONValue&)>& body) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  constexpr std::string_view before = "[";
  constexpr std::string_view behind = "]:]";
  static_assert(before.size() + behind.size() + simdjson::SIMDJSON_PADDING <= roomBehindFile);
  text.reserve(text.size() + roomBehindFile);
  text.replace(0, text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0, before);
  text.append(behind);

  ParserLease parser;
  simdjson::ondemand::document document;
  check(parser->iterate(simdjson::padded_string_view(text, text.capacity())).get(document));
  simdjson::ondemand::array array;
  check(document.get_array().get(array));
  std::size_t count = 0;
  for (auto result : array) {
    simdjson::ondemand::value value;
    check(std::move(result).get(value));
    if (++count > 1) failBadJSON("more than one value");
    JSONValue whole(value, 0);
    body(whole);
  }
  if (count == 0) failBadJSON("empty");
  const char* end = nullptr;
  check(document.current_location().get(end));
  if (end != text.data() + text.size() - (behind.size() - 1)) failBadJSON("something behind the value");
}

void decode(JSONValue& value, std::string& text) {
  text.assign(value.text());
}

void decode(JSONValue& value, bool& boolean) {
  boolean = value.boolean();
}

void decode(JSONValue& value, std::int64_t& integer) {
  integer = value.integer();
}

void decode(JSONValue& value, Date& date) {
  const auto parsed = parseISO8601(value.text());
  if (!parsed) value.fail("not an ISO 8601 date");
  date = *parsed;
}

}  // namespace foundation
