#include "widgetkit/static_configuration.hpp"

#include "foundation/iso8601.hpp"
#include "swiftui/overload.hpp"

namespace widgetkit {

foundation::JSON TimelineReloadPolicy::json() const {
  return std::visit(swiftui::Overload{
                        [](const AtEnd&) -> foundation::JSON { return "atEnd"; },
                        [](const After& after) -> foundation::JSON {
                          return foundation::JSON::object({{"after", foundation::formatMoment(after.date)}});
                        },
                        [](const Never&) -> foundation::JSON { return "never"; },
                    },
                    kind_);
}

StaticConfiguration StaticConfiguration::supportedFamilies(std::vector<swiftui::WidgetFamily> families) const {
  StaticConfiguration changed = *this;
  changed.families_ = std::move(families);
  return changed;
}

StaticConfiguration StaticConfiguration::configurationDisplayName(std::string name) const {
  StaticConfiguration changed = *this;
  changed.displayName_ = std::move(name);
  return changed;
}

StaticConfiguration StaticConfiguration::description(std::string text) const {
  StaticConfiguration changed = *this;
  changed.description_ = std::move(text);
  return changed;
}

StaticConfiguration StaticConfiguration::containerBackgroundRemovable(bool isRemovable) const {
  StaticConfiguration changed = *this;
  changed.isContainerBackgroundRemovable_ = isRemovable;
  return changed;
}

StaticConfiguration StaticConfiguration::contentMarginsDisabled() const {
  StaticConfiguration changed = *this;
  changed.areContentMarginsDisabled_ = true;
  return changed;
}

StaticConfiguration StaticConfiguration::shortName(std::string name) const {
  StaticConfiguration changed = *this;
  changed.shortName_ = std::move(name);
  return changed;
}

messages::WidgetDescription StaticConfiguration::describe() const {
  messages::WidgetDescription description{
      .kind = kind_, .shortName = shortName_, .displayName = displayName_, .description = description_};
  for (const auto family : families_) description.families.emplace_back(swiftui::nameOf(family));
  return description;
}

messages::Timeline StaticConfiguration::entries(const uikit::Platform& platform,
                                                messages::ProviderOperation operation) const {
  messages::Timeline timeline = entries_(platform, operation);
  timeline.kind = kind_;
  return timeline;
}

}  // namespace widgetkit
