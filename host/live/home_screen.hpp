#pragma once

#include <boost/asio/awaitable.hpp>
#include <boost/asio/steady_timer.hpp>
#include <map>
#include <vector>

#include "foundation/calendar.hpp"
#include "home/home_store.hpp"
#include "host/live/broadcast.hpp"
#include "host/live/container_files.hpp"
#include "host/live/extension_worker.hpp"
#include "host/live/kind_timeline.hpp"
#include "host/live/moment_timer.hpp"
#include "host/live/refusal.hpp"
#include "host/live/shown_widget.hpp"

namespace host {

/// The live home screen: the placed widgets, what they show, and what has to happen when. All on one executor.
///
/// Whatever happens (a moment comes, the container changes, a tap, an answer) ends in update(), which decides anew for
/// every kind and sets the timer for the next moment.
class HomeScreen {
 public:
  struct Options {
    messages::World world = {};  ///< its moment is not used
    LiveClock clock = {};
    bool followsSystemZone = false;  ///< world's zone is the system's, which may change
    ExtensionProcess::Options extension = {};
    foundation::JSON words = foundation::JSON::object();  ///< of the page
  };

  HomeScreen(const boost::asio::any_io_executor& executor, Options options, home::HomeStore& store);

  /// Asks what there is, once. The message says why that cannot be had.
  boost::asio::awaitable<std::expected<void, messages::Failure>> prepare();
  /// Begins to watch and to update; ends with the executor.
  void start();
  /// Reads everything again, as if nothing were known; what is shown stays until then.
  void reload();

  Broadcast& changes() { return changes_; }

  foundation::JSON state() const;
  boost::asio::awaitable<foundation::JSON> why();
  /// A widget's PNG file as it is now, or as it will be.
  boost::asio::awaitable<Result<std::string>> picture(std::int64_t id, double scale,
                                                      std::optional<foundation::Date> moment);
  boost::asio::awaitable<Result<std::string>> preview(std::string kind, std::string family, double scale);
  /// What all widgets will show.
  boost::asio::awaitable<Result<foundation::JSON>> at(foundation::Date moment);

  Result<std::int64_t> add(const std::string& kind, const std::string& family);
  Result<void> remove(std::int64_t id);
  Result<void> move(std::int64_t id, int position);
  /// Marks an item of a widget complete; done when the widget has its new timeline.
  boost::asio::awaitable<Result<void>> tap(std::int64_t id, std::string item, std::optional<foundation::Date> date);

 private:
  void update();
  void updateKinds(foundation::Date now, foundation::Date midnight);
  void updateWidgets(foundation::Date now);
  void setTimer();
  void happened(OutsideEvent event);
  void readPlacedWidgets();
  void placedWidgetsChanged();

  boost::asio::awaitable<void> requestTimeline(std::string kind);
  boost::asio::awaitable<void> drawAnew(std::int64_t id, PictureKey key, foundation::JSON entry, foundation::Date date);

  messages::Envelope envelope(messages::Request request, foundation::Date moment, const std::string& family = {}) const;
  messages::Envelope drawing(const home::PlacedWidget& widget, foundation::JSON entry, messages::PictureFormat format,
                             double scale, foundation::Date moment) const;
  boost::asio::awaitable<ExtensionWorker::Answer> ask(
      messages::Envelope question, ExtensionWorker::Urgency urgency = ExtensionWorker::Urgency::usual);
  /// The bytes of a picture, or why there are none.
  boost::asio::awaitable<std::expected<std::string, std::string>> draw(messages::Envelope question);
  /// The same, asked again where it fails: a browser asks for a picture once.
  boost::asio::awaitable<std::expected<std::string, std::string>> drawPatiently(const messages::Envelope& question);

  boost::asio::awaitable<void> watchMoments();
  boost::asio::awaitable<void> watchContainer();
  boost::asio::awaitable<void> watchZone();
  void letExtensionGoWhenIdle();

  foundation::Calendar calendar() const;
  /// Nothing where this version of the extension does not know the kind.
  const messages::WidgetDescription* description(const std::string& kind) const;
  ShownWidget* find(std::int64_t id);
  std::optional<std::size_t> entryAt(const std::string& kind, foundation::Date moment) const;

  boost::asio::any_io_executor executor_;
  Options options_;
  home::HomeStore& store_;
  ExtensionWorker extension_;
  MomentTimer timer_;
  boost::asio::steady_timer idle_;
  Broadcast changes_;
  Broadcast answers_;  ///< timelines that came, and requests that failed
  messages::Catalogue catalogue_;
  std::map<std::string, KindTimeline> kinds_;
  std::vector<ShownWidget> widgets_;
  ContainerFiles files_;
  std::uint64_t look_ = 0;
  std::uint64_t timelines_ = 0;
};

}  // namespace host
