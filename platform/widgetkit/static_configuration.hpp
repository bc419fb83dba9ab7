#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "messages/replies.hpp"
#include "messages/requests.hpp"
#include "swiftui/view.hpp"
#include "widgetkit/timeline_provider.hpp"

namespace widgetkit {

/// Says why an entry cannot be drawn; the widget stays as it was and the host reports it.
struct DrawingError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// One kind of widget: its name for the host, where its entries come from and what shows them. Made from a provider and
/// a content function, then changed by its modifiers:
///
///   StaticConfiguration("Clock", ClockProvider{}, [](const ClockEntry& entry) { return View(ClockView{entry}); })
///       .supportedFamilies({WidgetFamily::systemSmall})
///       .configurationDisplayName("Clock")
class StaticConfiguration {
 public:
  template <TimelineProvider Provider, class Content>
    requires std::is_invocable_r_v<swiftui::View, Content, const typename Provider::Entry&>
  StaticConfiguration(std::string kind, Provider provider, Content show)
      : kind_(std::move(kind)),
        entries_([provider](const uikit::Platform& platform, messages::ProviderOperation operation) {
          return ask(provider, platform, operation);
        }),
        content_([show](const foundation::JSON& entry) -> swiftui::View {
          return show(entry.get<typename Provider::Entry>());
        }) {}

  StaticConfiguration supportedFamilies(std::vector<swiftui::WidgetFamily> families) const;
  StaticConfiguration configurationDisplayName(std::string name) const;
  StaticConfiguration description(std::string text) const;
  /// Whether the system may leave the container background out.
  StaticConfiguration containerBackgroundRemovable(bool isRemovable) const;
  /// The system adds no margins around the content.
  StaticConfiguration contentMarginsDisabled() const;
  /// A short name under which the kind can be asked for, too.
  StaticConfiguration shortName(std::string name) const;

  const std::string& kind() const { return kind_; }
  const std::string& shortName() const { return shortName_; }
  bool areContentMarginsDisabled() const { return areContentMarginsDisabled_; }
  bool isContainerBackgroundRemovable() const { return isContainerBackgroundRemovable_; }
  const std::vector<swiftui::WidgetFamily>& families() const { return families_; }
  messages::WidgetDescription describe() const;

  /// Asks the provider.
  messages::Timeline entries(const uikit::Platform& platform, messages::ProviderOperation operation) const;
  /// The view of an entry as entries() gave it. Throws foundation::JSON::exception for another record, DrawingError
  /// where the kind cannot be drawn.
  swiftui::View content(const foundation::JSON& entry) const { return content_(entry); }

 private:
  template <class Provider>
  static messages::Timeline ask(const Provider& provider, const uikit::Platform& platform,
                                messages::ProviderOperation operation) {
    using messages::ProviderOperation;
    if (operation == ProviderOperation::placeholder) return {.entries = {provider.placeholder(platform)}};
    if (operation == ProviderOperation::snapshot) return {.entries = {provider.snapshot(platform)}};
    const auto timeline = provider.timeline(platform);
    messages::Timeline answer{.policy = timeline.policy.json()};
    messages::SharedValues shared;
    for (const auto& entry : timeline.entries) answer.entries.push_back(coded(entry, shared));
    answer.shared = shared.take();
    return answer;
  }

  /// Entries of which much is shared say how by jsonSharing(entry, shared).
  template <class Entry>
  static foundation::JSON coded(const Entry& entry, messages::SharedValues& shared) {
    if constexpr (requires { jsonSharing(entry, shared); }) {
      return jsonSharing(entry, shared);
    } else {
      return entry;
    }
  }

  std::string kind_;
  std::string shortName_;
  std::string displayName_;
  std::string description_;
  std::vector<swiftui::WidgetFamily> families_;
  bool isContainerBackgroundRemovable_ = true;
  bool areContentMarginsDisabled_ = false;
  std::function<messages::Timeline(const uikit::Platform&, messages::ProviderOperation)> entries_;
  std::function<swiftui::View(const foundation::JSON&)> content_;
};

}  // namespace widgetkit
