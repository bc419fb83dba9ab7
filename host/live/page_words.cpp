#include "host/live/page_words.hpp"

#include "foundation/words.hpp"

namespace host {

foundation::JSON pageWords(const std::filesystem::path& folder, const foundation::Locale& locale) {
  const auto words = foundation::Words::load(folder / "words", locale, "mirune-page");
  foundation::JSON json = foundation::JSON::object();
  for (const auto& [key, text] : words.messages()) json[std::string(key)] = text;
  return json;
}

}  // namespace host
