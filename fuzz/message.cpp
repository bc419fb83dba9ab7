#include "fuzz/fuzzing.hpp"
#include "messages/replies.hpp"
#include "messages/requests.hpp"

namespace {

/// What can be read can be written and read again.
template <class Message>
void survives(const foundation::JSON& json) {
  Message message;
  try {
    message = json.get<Message>();
  } catch (const foundation::JSON::exception&) {
    return;
  }
  fuzzing::require(foundation::JSON(message).get<Message>() == message, "a message survives the wire");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto json = foundation::JSON::parse(fuzzing::textOf(data, size), nullptr, false);
  if (json.is_discarded()) return 0;
  survives<messages::Envelope>(json);
  survives<messages::Reply>(json);
  return 0;
}
