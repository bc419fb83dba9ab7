#pragma once

#include <string>

#include "messages/replies.hpp"
#include "messages/requests.hpp"

namespace host {

/// A coroutine has its requests made here: see home_screen.cpp.
messages::Request providerRequest(messages::ProviderOperation operation, const std::string& kind);

/// What to say of an answer that is not the one that was asked for.
std::string messageOf(const messages::Reply& reply);

}  // namespace host
