#include "host/live/extension_messages.hpp"

namespace host {

messages::Request providerRequest(messages::ProviderOperation operation, const std::string& kind) {
  return messages::AskProvider{.operation = operation, .kind = kind};
}

std::string messageOf(const messages::Reply& reply) {
  const auto* failure = std::get_if<messages::Failure>(&reply);
  return failure != nullptr ? failure->message : "the widget extension answered something else than it was asked";
}

}  // namespace host
