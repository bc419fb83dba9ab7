#include "foundation/message_catalogue.hpp"
#include "fuzz/fuzzing.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const foundation::MessageCatalogue catalogue{std::string(fuzzing::textOf(data, size))};
  for (const auto& message : catalogue.messages()) {
    fuzzing::require(!message.key.empty() && !message.text.empty(), "a message has key and text");
    fuzzing::require(catalogue.translation(message.key).has_value(), "every key is found");
  }
  return 0;
}
