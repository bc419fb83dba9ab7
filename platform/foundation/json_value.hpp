#pragma once

#include <simdjson.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/decoding_error.hpp"
#include "foundation/json_number.hpp"

namespace foundation {

/// A value of a JSON text that is being decoded. Each value is read once, in the order of the text.
///
/// What does not fit throws a DecodingError; each object and array that the error leaves adds its key or place to the
/// path, so that reading good texts pays nothing for it. decodeJSON catches it: nobody else needs to.
class JSONValue {
 public:
  JSONValue(simdjson::ondemand::value value, int depth) : value_(value), depth_(depth) {}

  bool isNull();
  /// A text without its escapes. Valid until the decoding ends.
  std::string_view text();
  /// A whole number: 1, 1.0, 10e-1.
  std::int64_t integer();
  bool boolean();

  /// Calls `body(std::string_view key, JSONValue& member)` for each member of an object; every member must be read or
  /// skipped.
  template <class Body>
  void forEachMember(Body body);
  /// Calls `body(JSONValue& element)` for each element of an array; every element must be read or skipped.
  template <class Body>
  void forEachElement(Body body);

  /// Walks a value that nobody wants: it may be anything, but it must be JSON.
  void skip();

  /// Refuses the text because of this value.
  [[noreturn]] void fail(std::string reason) const;

 private:
  /// The value's text without the blanks behind it; of objects and arrays the bracket.
  std::string_view token();
  std::string_view unescapedText();
  [[noreturn]] void failExpecting(std::string_view reason);
  [[noreturn]] static void failBadNull();
  simdjson::ondemand::object enterObject();
  simdjson::ondemand::array enterArray();
  static void check(simdjson::error_code error) {
    if (error != simdjson::SUCCESS) failParsing(error);
  }
  [[noreturn]] static void failParsing(simdjson::error_code error);
  static std::string_view keyText(simdjson::ondemand::field& field);

  simdjson::ondemand::value value_;
  int depth_;  ///< of how many objects and arrays it is part
};

inline std::string_view JSONValue::token() {
  std::string_view token = value_.raw_json_token();
  const auto isBlank = [](char byte) { return byte == ' ' || byte == '\n' || byte == '\t' || byte == '\r'; };
  while (!token.empty() && isBlank(token.back())) token.remove_suffix(1);
  return token;
}

inline bool JSONValue::isNull() {
  const std::string_view text = token();
  if (!text.starts_with('n')) return false;
  if (text != "null") failBadNull();
  return true;
}

inline bool JSONValue::boolean() {
  const std::string_view text = token();
  if (text == "true") return true;
  if (text == "false") return false;
  failExpecting("not true or false");
}

inline std::int64_t JSONValue::integer() {
  const std::string_view number = token();
  if (number.size() == 1 && number.front() >= '0' && number.front() <= '9') return number.front() - '0';
  const auto whole = wholeNumber(number);
  if (!whole) failExpecting("not a whole number");
  return *whole;
}

inline std::string_view JSONValue::text() {
  const std::string_view quoted = token();
  if (!quoted.starts_with('"')) failExpecting("not a text");
  if (quoted.contains('\\')) return unescapedText();
  // Moves the parser on: it would take a text that was only looked at for a key if a colon followed.
  check(value_.get_raw_json_string().error());
  return quoted.substr(1, quoted.size() - 2);
}

inline std::string_view JSONValue::keyText(simdjson::ondemand::field& field) {
  const char* const start = field.key().raw();
  const char* end = start;
  while (*end != '"' && *end != '\\') ++end;
  if (*end == '"') return {start, end};
  std::string_view key;
  check(field.unescaped_key().get(key));
  return key;
}

template <class Body>
void JSONValue::forEachMember(Body body) {
  simdjson::ondemand::object object = enterObject();
  for (auto result : object) {
    simdjson::ondemand::field field;
    check(std::move(result).get(field));
    const std::string_view key = keyText(field);
    JSONValue member(field.value(), depth_ + 1);
    try {
      body(key, member);
    } catch (DecodingError& error) {
      moveIntoMember(error, key);
      throw;
    }
  }
}

template <class Body>
void JSONValue::forEachElement(Body body) {
  simdjson::ondemand::array array = enterArray();
  std::size_t index = 0;
  for (auto result : array) {
    simdjson::ondemand::value value;
    check(std::move(result).get(value));
    JSONValue element(value, depth_ + 1);
    try {
      body(element);
    } catch (DecodingError& error) {
      moveIntoElement(error, index);
      throw;
    }
    ++index;
  }
}

}  // namespace foundation
