#pragma once

#include <expected>
#include <optional>
#include <string>
#include <string_view>

#include "foundation/date.hpp"
#include "messages/replies.hpp"

namespace host {

/// The moment that was given to an option; `otherwise` where none was. A text that is no moment is a usage failure
/// that names the option.
std::expected<foundation::Date, messages::Failure> moment(std::string_view option,
                                                          const std::optional<std::string>& given,
                                                          foundation::Date otherwise);

}  // namespace host
