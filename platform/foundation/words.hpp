#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "foundation/locale.hpp"

namespace foundation {

/// The texts of one language, looked up by their English key. A key without translation is its own text.
class Words {
 public:
  /// English: every key is its own text.
  Words() = default;

  /// The gettext catalogue FOLDER/LANGUAGE/LC_MESSAGES/mirune.mo that fits best: "pt_BR", then "pt". The system's
  /// locales need not be installed. A catalogue that is missing or damaged leaves the keys.
  static Words load(const std::filesystem::path& folder, const Locale& locale);

  std::string localized(std::string_view key) const;

 private:
  struct Catalogue;
  std::shared_ptr<const Catalogue> catalogue_;
};

}  // namespace foundation
