#pragma once

#include <string>

#include "messages/replies.hpp"

namespace host {

/// One line a kind, in columns: short name, kind, display name, families, description.
std::string galleryTable(const messages::Catalogue& catalogue);

/// An array of records with the fields of messages::WidgetDescription.
std::string galleryJSON(const messages::Catalogue& catalogue);

}  // namespace host
