#include "foundation/json_value.hpp"

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

void JSONValue::failBadNull() {
  failBadJSON("a word that is not null");
}

std::string_view JSONValue::unescapedText() {
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
      return forEachMember([](std::string_view, JSONValue& member) { member.skip(); });
    case '[':
      return forEachElement([](JSONValue& element) { element.skip(); });
    case '"':
      this->text();
      return;
    default:
      if (text != "true" && text != "false" && text != "null" && !isJSONNumber(text)) failBadJSON("not a value");
  }
}

}  // namespace foundation
