#pragma once

#include <chrono>
#include <cstdint>
#include <expected>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "home/home_file.hpp"
#include "home/placed_widget.hpp"

namespace home {

/// Why the home screen was not changed.
struct StoreError {
  enum class Reason {
    unknownWidget,  ///< there is none with this id
    noRoom,         ///< the lock screen is full
    notStored,      ///< the file could not be written or read: disk full, read-only, in use, broken
  };
  Reason reason = Reason::notStored;
  std::string message = {};  ///< for the user: a whole sentence
};

/// The widgets that stand on the home screen and the lock screen, kept in a file. A change has reached the disk, past a
/// power cut, when its call returns; a change that fails changes neither the file nor widgets(). Several processes may
/// use one file: changes of another one show with the next change here.
class HomeStore {
 public:
  /// Opens or makes the file ($XDG_DATA_HOME/mirune/home.db); see openHomeFile(). Never fails: at worst the store lives
  /// in memory, and notice() says why.
  explicit HomeStore(const std::filesystem::path& file, std::chrono::milliseconds patience = defaultPatience);

  /// The home screen's widgets in order, then the lock screen's.
  const std::vector<PlacedWidget>& widgets() const { return widgets_; }

  /// What went wrong on opening, for the user.
  const std::optional<std::string>& notice() const { return file_.notice; }
  /// Whether changes outlast this process.
  bool isKept() const { return file_.isKept; }

  /// Puts a widget at the end of its place and returns its id. Whether the kind exists is not asked.
  std::expected<std::int64_t, StoreError> add(std::string_view kind, std::string_view family, Place place);
  std::expected<void, StoreError> remove(std::int64_t id);
  /// Moves a widget to a position within its place, the others close up; beyond the end means the end.
  std::expected<void, StoreError> move(std::int64_t id, int position);

 private:
  using Rows = std::vector<PlacedWidget>;
  template <class Result>
  std::expected<Result, StoreError> change(
      const std::function<std::expected<Result, StoreError>(const Rows& rows)>& action);
  /// Gives the rows the positions that they have in an arrangement.
  void write(const Rows& rows, const Rows& arrangement);

  HomeFile file_;
  Rows widgets_;
};

}  // namespace home
