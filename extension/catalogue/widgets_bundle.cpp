#include "catalogue/widgets_bundle.hpp"

#include "catalogue/widgets.hpp"
#include "shared/share_resources.hpp"

namespace mirune {

Mirune_WidgetsColl::Mirune_WidgetsColl(const std::filesystem::path& resources) {
  MiruneShareResources::loadFonts(resources);
}

std::vector<widgetkit::StaticConfiguration> Mirune_WidgetsColl::body(const uikit::Platform& platform) const {
  return {
      Mirune_Widgets5{}.body(platform), Mirune_Widgets6{}.body(platform), Mirune_Widgets2{}.body(platform),
      Mirune_Widgets3{}.body(platform), Mirune_Widgets4{}.body(platform), Mirune_Widgets{}.body(platform),
      Mirune_Widgets7{}.body(platform), Mirune_Widgets8{}.body(platform),
  };
}

}  // namespace mirune
