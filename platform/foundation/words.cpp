#include "foundation/words.hpp"

#include <boost/locale/gnu_gettext.hpp>
#include <boost/locale/message.hpp>
#include <exception>
#include <locale>
#include <vector>

#include "foundation/catalogue_check.hpp"
#include "foundation/file_manager.hpp"

namespace foundation {
namespace {

using Messages = boost::locale::message_format<char>;
namespace gettext = boost::locale::gnu_gettext;

constexpr const char* domain = "mirune";

/// What Boost asks for each file that it would like; an empty answer is a file that is not there.
std::vector<char> readCatalogue(const std::string& path, const std::string&) {
  const auto bytes = readFile(path);
  if (!bytes || !isSoundCatalogue(*bytes)) return {};
  return {bytes->begin(), bytes->end()};
}

/// The parts of "zh_Hans_CN" that file names go by.
gettext::messages_info infoFor(const std::filesystem::path& folder, const Locale& locale) {
  gettext::messages_info info;
  info.language = locale.language();
  const std::string name = locale.identifier().substr(0, locale.identifier().find('@'));
  std::size_t start = name.find('_');
  while (start != std::string::npos && info.country.empty()) {
    const std::size_t end = name.find('_', start + 1);
    const std::string part = name.substr(start + 1, end == std::string::npos ? end : end - start - 1);
    if (part.size() == 2 || part.size() == 3) info.country = part;
    start = end;
  }
  info.encoding = "UTF-8";
  info.domains = {gettext::messages_info::domain(domain)};
  info.paths = {folder.string()};
  info.callback = readCatalogue;
  return info;
}

}  // namespace

struct Words::Catalogue {
  /// Owns the messages as its facet.
  std::locale holder;

  const Messages& messages() const { return std::use_facet<Messages>(holder); }
};

Words Words::load(const std::filesystem::path& folder, const Locale& locale) {
  Words words;
  try {
    // Null where there is no catalogue.
    Messages* const messages = gettext::create_messages_facet<char>(infoFor(folder, locale));
    if (messages != nullptr) {
      words.catalogue_ = std::make_shared<Catalogue>(Catalogue{std::locale(std::locale::classic(), messages)});
    }
  } catch (const std::exception&) {
    // A damaged catalogue is as good as none.
  }
  return words;
}

std::string Words::localized(std::string_view key) const {
  std::string english(key);
  if (!catalogue_ || english.empty()) return english;
  const char* const translation = catalogue_->messages().get(0, nullptr, english.c_str());
  const bool isTranslated = translation != nullptr && *translation != '\0';
  return isTranslated ? translation : english;
}

}  // namespace foundation
