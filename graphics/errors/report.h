#pragma once
// The engine's one road for reporting a failure: every error, warning and
// informational message goes through here to the installed handlers.
#include <string>

namespace graphics {

enum Severity : int { kInfo = 0, kWarning = 1, kError = 2, kFatal = 3 };

// Categories of the engine's errors. The host drops the pairs (9, 411) and
// (58, 256) silently and treats category 3 as urgent, so the engine never
// reports those two pairs and uses category 3 for allocation failure only.
enum Category : int {
  kCategoryMemory = 3,
  kCategoryKey = 20,
  kCategoryOpen = 21,
  kCategoryName = 22,
  kCategoryOption = 23,
  kCategoryRange = 24,
  kCategoryGeometry = 25,
  kCategorySearch = 26,
  kCategoryUnavailable = 27,
};

// Reports one message, with `routine` (the exported function's name) as the
// only element of the routine list.
void ReportError(int category, int specific, int severity, const std::string& message,
                 const char* routine);

// The shared path of every C-interface function that is declared but not yet
// implemented: reports that `routine` is not available.
void ReportUnavailable(const char* routine);

}  // namespace graphics
