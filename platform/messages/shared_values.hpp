#pragma once

#include <functional>
#include <unordered_map>
#include <vector>

#include "foundation/json.hpp"

// Entries of one timeline may hold the same values over and over: a day of 500 events has up to 1001 entries with half
// of them each. Such values travel once, beside the entries; in an entry {"$shared": [[3, 2], [7, 1]]} stands for the
// array of the values of the numbers 3, 4 and 7: two from 3 on, one from 7 on.

namespace messages {

/// Gathers the values that the entries of a timeline share.
class SharedValues {
 public:
  /// The number of a value, which is asked for where it is met for the first time. It is told from others by where it
  /// lies: what the address points to must stay until all is gathered.
  std::size_t numberOf(const void* address, const std::function<foundation::JSON()>& value);

  /// What stands in an entry for the array of the values of these numbers.
  static foundation::JSON reference(const std::vector<std::size_t>& numbers);

  std::vector<foundation::JSON> take() { return std::move(values_); }

 private:
  std::unordered_map<const void*, std::size_t> numbers_ = {};
  std::vector<foundation::JSON> values_ = {};
};

/// An entry with its shared values in their places. A number without a value throws foundation::JSON::exception.
foundation::JSON withSharedValues(const foundation::JSON& entry, const std::vector<foundation::JSON>& shared);

}  // namespace messages
