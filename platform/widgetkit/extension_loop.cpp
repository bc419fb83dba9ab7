#include "widgetkit/extension_loop.hpp"

#include <sys/socket.h>

#include <iostream>
#include <tuple>

#include "messages/channel.hpp"

namespace widgetkit {
namespace {

bool isSocket(int descriptor) {
  int type = 0;
  socklen_t length = sizeof type;
  return getsockopt(descriptor, SOL_SOCKET, SO_TYPE, &type, &length) == 0 && type == SOCK_STREAM;
}

messages::Reply answerTo(ExtensionService& service, const foundation::JSON& header, messages::Channel& channel) {
  messages::Envelope envelope;
  try {
    envelope = header.get<messages::Envelope>();
  } catch (const foundation::JSON::exception& error) {
    return messages::Failure{.reason = messages::Failure::Reason::failed,
                             .message = std::string("not a request: ") + error.what()};
  }
  return service.answer(envelope, [&](const messages::Progress& progress) {
    // A host that is gone is found out by the answer.
    std::ignore = channel.send(foundation::JSON(messages::Reply(progress)));
  });
}

/// Whether the host has got the answer, or that it is too large for a message.
bool send(messages::Channel& channel, const messages::Reply& reply) {
  const auto* picture = std::get_if<messages::Picture>(&reply);
  const auto sent = channel.send(foundation::JSON(reply), picture != nullptr ? picture->bytes : std::string_view());
  if (sent || sent.error() != messages::ChannelError::malformed) return sent.has_value();
  const messages::Reply refusal =
      messages::Failure{.reason = messages::Failure::Reason::failed, .message = "the answer is too large to send"};
  return channel.send(foundation::JSON(refusal)).has_value();
}

}  // namespace

int serveHost(ExtensionService& service, int descriptor) {
  if (!isSocket(descriptor)) {
    std::cerr << "mirune-extension: started without a host; run 'mirune' instead\n";
    return 2;
  }
  messages::Channel channel(descriptor);
  while (const auto frame = channel.receive()) {
    const messages::Reply reply = answerTo(service, frame->header, channel);
    if (!send(channel, reply)) break;
  }
  return 0;
}

}  // namespace widgetkit
