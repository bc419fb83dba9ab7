#include "catalogue/widgets_bundle.hpp"

#include "catalogue/widgets.hpp"
#include "completion/task_intent.hpp"
#include "device/device_name.hpp"
#include "device/ui_device.hpp"
#include "shared/diagnosis.hpp"
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

bool Mirune_WidgetsColl::perform(const std::string& intent, const foundation::JSON& parameters,
                                 const uikit::Platform& platform) const {
  if (intent != TaskIntent::name) return false;
  TaskIntent{.id = parameters.at("id").get<std::string>(),
             .date = parameters.at("date").get<std::optional<foundation::Date>>()}
      .perform(platform);
  return true;
}

messages::Diagnosis Mirune_WidgetsColl::diagnose(const uikit::Platform& platform) const {
  return diagnoseContainer(platform);
}

std::string Mirune_WidgetsColl::nameDevice(const std::optional<std::string>& identifier) const {
  return identifier ? deviceName(*identifier, UIDevice::simulatedModel()) : UIDevice::modelName();
}

}  // namespace mirune
