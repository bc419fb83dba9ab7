#include "lists/list_texts.hpp"

#include "foundation/strings.hpp"

namespace mirune {

using namespace swiftui;

View listTitle(const std::string& name) {
  return text(foundation::uppercased(name))
      .font(system(13, FontWeight::medium, FontDesign::rounded))
      .opacity(0.9)
      .lineLimit(1)
      .minimumScaleFactor(0.7)
      .accessibilityLabel(name);
}

std::string moreText(const foundation::Words& words, long long count) {
  return foundation::filled(words.localized("+%lld more"), count);
}

View moreFooter(const foundation::Words& words, long long count) {
  return text(moreText(words, count)).font(system(10, FontWeight::light, FontDesign::rounded)).lineLimit(1);
}

}  // namespace mirune
