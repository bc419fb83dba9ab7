#pragma once

#include "host/states/scratch_folder.hpp"

namespace growing {

/// How many items of a kind a planner has, and on how many days from the morning on; each day has equally many.
struct Amount {
  int items = 0;
  int days = 1;
};

/// A planner's container with generated items, all at other times of their day. It goes with this.
class PlannerFolder {
 public:
  struct Contents {
    Amount tasks = {};
    Amount habits = {};
    Amount events = {};
  };

  explicit PlannerFolder(const Contents& contents);

  const std::filesystem::path& path() const { return folder_.path(); }

 private:
  host::ScratchFolder folder_;
};

}  // namespace growing
