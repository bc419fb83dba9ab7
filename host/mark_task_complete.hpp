#pragma once

namespace host {

/// The action behind the check boxes of widgets, as the extension names it. Its parameters are "id" and "date".
inline constexpr const char* markTaskComplete = "TaskIntent";

}  // namespace host
