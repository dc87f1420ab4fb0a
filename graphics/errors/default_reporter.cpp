#include "errors/default_reporter.h"

#include <cstdio>

#include "errors/report.h"

namespace graphics {

namespace {

const char* SeverityWord(int severity) {
  switch (severity) {
    case kInfo:
      return "info";
    case kWarning:
      return "warning";
    case kError:
      return "error";
    case kFatal:
      return "fatal error";
  }
  return "report";
}

}  // namespace

std::string FormatReport(int category, int specific, int severity, int msgc, const char* const* msgv, int stackc,
                         const char* const* stackv) {
  std::string line = std::string("HOOPS ") + SeverityWord(severity) + ' ' + std::to_string(category) + '/' +
                     std::to_string(specific);
  if (stackc > 0 && stackv != nullptr && stackv[0] != nullptr) line += std::string(" in ") + stackv[0];
  line += ':';
  const char* separator = " ";
  for (int i = 0; msgv != nullptr && i < msgc; ++i) {
    if (msgv[i] == nullptr) continue;
    line += separator;
    line += msgv[i];
    separator = "; ";
  }
  return line;
}

void PrintReport(int category, int specific, int severity, int msgc, const char* const* msgv, int stackc,
                 const char* const* stackv) {
  const std::string line = FormatReport(category, specific, severity, msgc, msgv, stackc, stackv) + '\n';
  std::fputs(line.c_str(), stderr);
}

}  // namespace graphics
