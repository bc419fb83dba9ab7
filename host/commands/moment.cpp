#include "host/commands/moment.hpp"

#include "foundation/iso8601.hpp"
#include "host/commands/command.hpp"

namespace host {

std::expected<foundation::Date, messages::Failure> moment(std::string_view option,
                                                          const std::optional<std::string>& given,
                                                          foundation::Date otherwise) {
  if (!given) return otherwise;
  if (const auto date = foundation::parseMoment(*given)) return *date;
  return usage(std::string(option) + ": '" + *given + "' is not a moment such as 2026-11-21T08:00:00Z");
}

}  // namespace host
