#pragma once

namespace foundation {

/// Finds ICU's tables (some 30 MB) in its shared library. A program that has ICU's code in itself calls this before all
/// else, and stops where that library is missing.
void openICUTables();

}  // namespace foundation
