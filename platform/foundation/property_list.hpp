#pragma once

#include <plist/plist.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace foundation {

/// A property list whose root is a dictionary, in the form (XML or binary) in which it was read.
class PropertyList {
 public:
  /// What a key holds, of what settings use; every other type is nothing.
  using Value = std::variant<std::monostate, bool, std::int64_t, double, std::string>;

  /// Empty, in XML.
  PropertyList();
  /// Nothing for damaged bytes, for another root than a dictionary and for more than 16 MiB or 256 nested containers.
  static std::optional<PropertyList> parse(std::string_view bytes);

  bool contains(std::string_view key) const;
  Value value(std::string_view key) const;
  void set(std::string_view key, std::int64_t value);
  void set(std::string_view key, bool value);

  std::string bytes() const;

 private:
  enum class Form { xml, binary };
  struct Free {
    void operator()(void* node) const { plist_free(node); }
  };
  using Node = std::unique_ptr<void, Free>;
  PropertyList(Node root, Form form) : root_(std::move(root)), form_(form) {}
  void set(std::string_view key, Node value);

  Node root_;
  Form form_ = Form::xml;
};

}  // namespace foundation
