#include "foundation/property_list.hpp"

#include "foundation/binary_nesting.hpp"

namespace foundation {
namespace {

constexpr std::size_t maximalSize = 16 * 1024 * 1024;
constexpr NestingLimits limits = {};

/// Whether an element such as `<dict>` starts at that place and holds something.
bool opens(std::string_view xml, std::size_t at, std::string_view tag) {
  if (!xml.substr(at + 1).starts_with(tag)) return false;
  const std::size_t end = xml.find('>', at);
  return end != std::string_view::npos && xml[end - 1] != '/';
}

bool closes(std::string_view xml, std::size_t at, std::string_view tag) {
  return xml.substr(at + 1).starts_with('/') && xml.substr(at + 2).starts_with(tag);
}

/// libplist walks containers by recursion, so a text that nests without end would exhaust the stack.
bool nestsTooDeep(std::string_view xml) {
  int depth = 0;
  for (std::size_t at = xml.find('<'); at != std::string_view::npos; at = xml.find('<', at + 1)) {
    if (opens(xml, at, "dict") || opens(xml, at, "array")) ++depth;
    if (closes(xml, at, "dict") || closes(xml, at, "array")) --depth;
    if (depth > limits.depth) return true;
  }
  return false;
}

}  // namespace

PropertyList::PropertyList() : root_(plist_new_dict()) {}

std::optional<PropertyList> PropertyList::parse(std::string_view bytes) {
  if (bytes.empty() || bytes.size() > maximalSize) return std::nullopt;
  const auto size = static_cast<std::uint32_t>(bytes.size());
  const bool isBinary = plist_is_binary(bytes.data(), size) != 0;
  if (isBinary ? !unfoldsWithin(limits, bytes) : nestsTooDeep(bytes)) return std::nullopt;

  plist_t parsed = nullptr;
  (isBinary ? plist_from_bin : plist_from_xml)(bytes.data(), size, &parsed);
  Node root(parsed);
  if (!root || plist_get_node_type(root.get()) != PLIST_DICT) return std::nullopt;
  return PropertyList(std::move(root), isBinary ? Form::binary : Form::xml);
}

bool PropertyList::contains(std::string_view key) const {
  return plist_dict_get_item(root_.get(), std::string(key).c_str()) != nullptr;
}

PropertyList::Value PropertyList::value(std::string_view key) const {
  const plist_t node = plist_dict_get_item(root_.get(), std::string(key).c_str());
  switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
      std::uint8_t value = 0;
      plist_get_bool_val(node, &value);
      return value != 0;
    }
    case PLIST_UINT: {
      std::uint64_t value = 0;  // negative numbers come as their two's complement
      plist_get_uint_val(node, &value);
      return static_cast<std::int64_t>(value);
    }
    case PLIST_REAL: {
      double value = 0;
      plist_get_real_val(node, &value);
      return value;
    }
    case PLIST_STRING: {
      std::uint64_t size = 0;
      const char* const text = plist_get_string_ptr(node, &size);
      return text == nullptr ? std::string() : std::string(text, size);
    }
    default:
      return {};
  }
}

void PropertyList::set(std::string_view key, std::int64_t value) {
  set(key, Node(plist_new_uint(static_cast<std::uint64_t>(value))));
}

void PropertyList::set(std::string_view key, bool value) {
  set(key, Node(plist_new_bool(value ? 1 : 0)));
}

void PropertyList::set(std::string_view key, Node value) {
  plist_dict_set_item(root_.get(), std::string(key).c_str(), value.release());
}

std::string PropertyList::bytes() const {
  char* text = nullptr;
  std::uint32_t size = 0;
  const bool isBinary = form_ == Form::binary;
  (isBinary ? plist_to_bin : plist_to_xml)(root_.get(), &text, &size);
  const std::unique_ptr<char, decltype(&plist_to_xml_free)> owned(text,
                                                                  isBinary ? plist_to_bin_free : plist_to_xml_free);
  return text == nullptr ? std::string() : std::string(text, size);
}

}  // namespace foundation
