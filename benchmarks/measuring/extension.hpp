#pragma once

#include <stdexcept>
#include <string>

#include "catalogue/widgets_bundle.hpp"
#include "messages/replies.hpp"
#include "messages/requests.hpp"
#include "widgetkit/extension_service.hpp"

namespace measuring {

/// The extension within this program: what answers the host's requests, without the way to it.
class Extension {
 public:
  explicit Extension(messages::World world);

  messages::Timeline timeline(const std::string& kind, foundation::Date now);
  /// The bytes of a picture at twice the size.
  std::string picture(const std::string& kind, const std::string& family, const foundation::JSON& entry,
                      messages::PictureFormat format, foundation::Date now);
  messages::Catalogue catalogue() { return ask<messages::Catalogue>(messages::DescribeCatalogue{}, world_.now); }

 private:
  /// Throws std::runtime_error where the answer is another.
  template <class Reply>
  Reply ask(messages::Request request, foundation::Date now) {
    messages::World world = world_;
    world.now = now;
    auto reply = service_.answer({.world = std::move(world), .request = std::move(request)});
    if (const auto* failure = std::get_if<messages::Failure>(&reply)) throw std::runtime_error(failure->message);
    return std::get<Reply>(std::move(reply));
  }

  messages::World world_;
  mirune::Mirune_WidgetsColl bundle_;
  widgetkit::ExtensionService service_;
};

}  // namespace measuring
