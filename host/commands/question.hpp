#pragma once

#include <expected>
#include <utility>
#include <variant>

#include "host/commands/command.hpp"
#include "host/extension_process.hpp"

namespace host {

/// Asks the extension for an answer of one type. A failure that it reports is passed on as it is.
template <typename Answer>
std::expected<Answer, messages::Failure> question(ExtensionProcess& extension, const messages::Envelope& envelope,
                                                  const ExtensionProcess::ReportProgress& report = {}) {
  auto reply = extension.ask(envelope, report);
  if (!reply) return failed(std::move(reply.error()));
  if (auto* failure = std::get_if<messages::Failure>(&*reply)) return std::unexpected(std::move(*failure));
  if (auto* answer = std::get_if<Answer>(&*reply)) return std::move(*answer);
  return failed("the widget extension answered something else than it was asked");
}

}  // namespace host
