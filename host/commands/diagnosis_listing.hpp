#pragma once

#include <cstddef>
#include <string>

#include "messages/replies.hpp"
#include "messages/world.hpp"

namespace host {

/// How much is wrong; a container that is not there is a fault, a file that is not there is none.
std::size_t faultCount(const messages::Diagnosis& diagnosis);

/// For people: a line a file, below it a line a problem.
///
///   container: /home/me/planner
///   habits.json        3 h ago, 1.2 kB, does not decode
///     problem: 2026/11/21[3].calid: missing
///     effect: Habits: no habits on any day
///   moods.json         not there: Mood Check-In and Moods: no mood on any day
///   1 problem
std::string diagnosisListing(const messages::Diagnosis& diagnosis, const messages::World& world);

/// For programs: {"container": …, "hasContainer": …, "files": [{"file", "state", "modified", "size", "problems",
/// "consequence"}]}; a state is "missing", "unreadable", "refused" or "decoded".
std::string diagnosisJSON(const messages::Diagnosis& diagnosis, const messages::World& world);

/// "3 h ago"; "in 2 h" for what lies ahead. Cut, not rounded: seconds, minutes, from two hours on hours, from two days
/// on days.
std::string ageText(foundation::Date date, foundation::Date now);

/// "812 B", "1.2 kB" (of 1000 bytes), "3.4 MB".
std::string sizeText(std::int64_t bytes);

}  // namespace host
