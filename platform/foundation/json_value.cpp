#include "foundation/json_value.hpp"

#include <cstring>

#include "foundation/json_number.hpp"

namespace foundation {
namespace {

constexpr int maximalDepth = 512;

[[noreturn]] void failBadJSON(std::string_view what) {
  throw DecodingError{.reason = "bad JSON: " + std::string(what)};
}

}  // namespace

void JSONValue::failParsing(simdjson::error_code error) {
  failBadJSON(simdjson::error_message(error));
}

void JSONValue::fail(std::string reason) const {
  throw DecodingError{.reason = std::move(reason)};
}

// Something else than was expected: a null and what is no JSON at all are called so.
void JSONValue::failExpecting(std::string_view reason) {
  if (isNull()) fail("null");
  skip();
  fail(std::string(reason));
}

bool JSONValue::isNull() {
  const std::string_view text = token();
  if (!text.starts_with('n')) return false;
  if (text != "null") failBadJSON("a word that is not null");
  return true;
}

bool JSONValue::boolean() {
  const std::string_view text = token();
  if (text == "true") return true;
  if (text == "false") return false;
  failExpecting("not true or false");
}

std::int64_t JSONValue::integer() {
  const auto number = wholeNumber(token());
  if (!number) failExpecting("not a whole number");
  return *number;
}

std::string_view JSONValue::text() {
  const std::string_view quoted = token();
  if (!quoted.starts_with('"')) failExpecting("not a text");
  if (std::memchr(quoted.data(), '\\', quoted.size()) == nullptr) {
    // Moves the parser on: it would take a text that was only looked at for a key if a colon followed.
    check(value_.get_raw_json_string().error());
    return quoted.substr(1, quoted.size() - 2);
  }
  std::string_view text;
  check(value_.get_string().get(text));
  return text;
}

simdjson::ondemand::object JSONValue::enterObject() {
  if (!token().starts_with('{')) failExpecting("not an object");
  if (depth_ >= maximalDepth) failBadJSON("nested too deep");
  simdjson::ondemand::object object;
  check(value_.get_object().get(object));
  return object;
}

simdjson::ondemand::array JSONValue::enterArray() {
  if (!token().starts_with('[')) failExpecting("not an array");
  if (depth_ >= maximalDepth) failBadJSON("nested too deep");
  simdjson::ondemand::array array;
  check(value_.get_array().get(array));
  return array;
}

void JSONValue::skip() {
  const std::string_view text = token();
  switch (text.empty() ? '\0' : text.front()) {
    case '{':
      return forEachMember([](std::string_view, JSONValue member) { member.skip(); });
    case '[':
      return forEachElement([](JSONValue element) { element.skip(); });
    case '"':
      this->text();
      return;
    default:
      if (text != "true" && text != "false" && text != "null" && !isJSONNumber(text)) failBadJSON("not a value");
  }
}

}  // namespace foundation
