#pragma once
// What the default handler, HC_Report_Error, does with a report: one line on
// standard error.
#include <string>

namespace graphics {

// "HOOPS error 20/2001 in HC_Open_Segment_By_Key: invalid key -5", message
// lines joined by "; ". Null or missing lines and routines are left out.
std::string FormatReport(int category, int specific, int severity, int msgc, const char* const* msgv, int stackc,
                         const char* const* stackv);
void PrintReport(int category, int specific, int severity, int msgc, const char* const* msgv, int stackc,
                 const char* const* stackv);

}  // namespace graphics
