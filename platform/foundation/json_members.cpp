#include "foundation/json_members.hpp"

#include <cstdint>
#include <string>

namespace foundation {

void decodeMembers(JSONValue& value, std::span<const JSONMember> members) {
  std::uint64_t seen = 0;
  std::size_t expected = 0;  // files mostly keep the order of the record, so the search starts behind the last find

  value.forEachMember([&](std::string_view key, JSONValue& member) {
    for (std::size_t step = 0; step < members.size(); ++step) {
      const std::size_t place = expected;
      expected = place + 1 < members.size() ? place + 1 : 0;
      if (members[place].key != key) continue;
      const std::uint64_t bit = std::uint64_t{1} << place;
      if ((seen & bit) != 0) break;
      seen |= bit;
      return members[place].read(member, members[place].field);
    }
    member.skip();
  });

  for (std::size_t place = 0; place < members.size(); ++place) {
    const bool isMissing = (seen >> place & 1) == 0;
    if (members[place].isRequired && isMissing) {
      throw DecodingError{.path = std::string(members[place].key), .reason = "missing"};
    }
  }
}

}  // namespace foundation
