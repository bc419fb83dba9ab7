#pragma once

#include <filesystem>
#include <memory>

#include "foundation/locale.hpp"
#include "foundation/message_catalogue.hpp"

namespace foundation {

/// The texts of one language, looked up by their English key. A key without translation is its own text.
class Words {
 public:
  /// English: every key is its own text.
  Words() = default;

  /// The gettext catalogue FOLDER/LANGUAGE/LC_MESSAGES/DOMAIN.mo that fits best: "pt_BR", then "pt" (catalogueNames()).
  /// The system's locales need not be installed. A catalogue that is missing or damaged leaves the keys.
  static Words load(const std::filesystem::path& folder, const Locale& locale, const std::string& domain = "mirune");

  std::string localized(std::string_view key) const;
  /// Everything that is translated, sorted by key; valid as long as these words.
  std::span<const Message> messages() const;

 private:
  std::shared_ptr<const MessageCatalogue> catalogue_;
};

}  // namespace foundation
