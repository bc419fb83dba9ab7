#include "foundation/json_decoder.hpp"
#include "fuzz/fuzzing.hpp"
#include "shared/item_files.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto file = foundation::decodeJSON<mirune::ItemFile>(std::string(fuzzing::textOf(data, size)));
  if (!file) return 0;
  for (const auto& [day, items] : *file) {
    fuzzing::require(&mirune::itemsUnder(*file, day) == &items, "a day's items are found");
    for (const auto& item : items) {
      const auto type = static_cast<int>(item.type);
      fuzzing::require(type >= 1 && type <= 3, "an item is of a known type");
    }
  }
  return 0;
}
