#include "foundation/words.hpp"

#include "foundation/catalogue_names.hpp"
#include "foundation/file_manager.hpp"

namespace foundation {

Words Words::load(const std::filesystem::path& folder, const Locale& locale, const std::string& domain) {
  Words words;
  for (const std::string& name : catalogueNames(locale)) {
    auto bytes = readFile(folder / name / "LC_MESSAGES" / (domain + ".mo"));
    if (!bytes) continue;
    words.catalogue_ = std::make_shared<const MessageCatalogue>(std::move(*bytes));
    if (!words.messages().empty()) break;
  }
  return words;
}

std::string Words::localized(std::string_view key) const {
  const auto translation = catalogue_ ? catalogue_->translation(key) : std::nullopt;
  return std::string(translation.value_or(key));
}

std::span<const Message> Words::messages() const {
  return catalogue_ ? catalogue_->messages() : std::span<const Message>();
}

}  // namespace foundation
