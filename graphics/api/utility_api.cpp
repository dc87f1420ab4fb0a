// Small services: token parsing, the library clock, memory use and device
// facts.
#include <malloc.h>

#include <chrono>
#include <string>
#include <vector>

#include "api/arguments.h"
#include "api/call.h"
#include "hc/hc.h"
#include "strings/text.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Run;
using api::WriteString;

namespace {

// The library's clock starts when the engine is loaded, before any call.
const auto kStart = std::chrono::steady_clock::now();

// The devices every driver of the engine renders to until real ones exist:
// a 1024 x 768 framebuffer at 96 dots per inch.
constexpr int kWidthPixels = 1024;
constexpr int kHeightPixels = 768;
constexpr double kPixelsPerCentimetre = 96 / 2.54;

std::string Pair(double a, double b) {
  char text[64];
  std::snprintf(text, sizeof text, "%g, %g", a, b);
  return text;
}

}  // namespace

// Tokens are cut at each occurrence of the whole delimiter; empty tokens
// count; blanks around a token are removed. A negative offset counts from
// the end (-1 is the last token). Past either end: false, `token` untouched.
extern "C" bool HC_Parse_String(char const* string, char const* delimiter, int offset, char* token) {
  return Run(Access::kRead, __func__, false, [&](Session&) -> Result<bool> {
    for (const char* p : {string, delimiter}) {
      auto required = api::Require(p, "string");
      if (!required.ok()) return required.error();
    }
    const std::string_view text = string;
    const std::string_view cut = delimiter;
    if (cut.empty()) return Error(errc::kOutOfRange, "an empty delimiter cannot cut a string");
    std::vector<std::string_view> tokens;
    size_t start = 0;
    for (size_t at = text.find(cut); at != std::string_view::npos; at = text.find(cut, start)) {
      tokens.push_back(text.substr(start, at - start));
      start = at + cut.size();
    }
    tokens.push_back(text.substr(start));
    const long long index = offset < 0 ? static_cast<long long>(tokens.size()) + offset : offset;
    if (index < 0 || index >= static_cast<long long>(tokens.size())) return false;
    WriteString(token, TrimBlanks(tokens[static_cast<size_t>(index)]));
    return true;
  });
}

extern "C" void HC_Show_Time(float* time) {
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - kStart;
  api::Write(time, static_cast<float>(elapsed.count()));
}

// The C library's heap: what it took from the system, and what of that is
// handed out.
extern "C" void HC_Show_Memory_Usage(size_t* allocated, size_t* in_use) {
  const struct mallinfo2 info = mallinfo2();
  api::Write(allocated, info.arena + info.hblkhd);
  api::Write(in_use, info.uordblks + info.hblkhd);
}

// Facts about a driver segment's device, answered from the configuration
// (no update is forced). An unknown item is reported and gives "".
extern "C" void HC_Show_Device_Info(char const* driver, char const* item, char* data) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    for (const char* p : {driver, item}) {
      auto required = api::Require(p, "device argument");
      if (!required.ok()) return required.error();
    }
    const std::string word = NormalizeWord(item);
    if (word == "exists") {
      auto segment = session.FindSegment(driver);
      WriteString(data, segment.ok() && segment.value() != nullptr ? "yes" : "no");
      return Done{};
    }
    const std::string path = NormalizeWord(driver);
    std::string answer;
    if (word == "alive" || word == "started") {
      answer = "no";
    } else if (word == "windowing system") {
      answer = "yes";
    } else if (word == "driver type") {
      answer = path.find("/driver/image") != std::string::npos ? "image" : "null";
    } else if (word == "pixels" || word == "max pixels") {
      answer = Pair(kWidthPixels, kHeightPixels);
    } else if (word == "size") {
      answer = Pair(kWidthPixels / kPixelsPerCentimetre, kHeightPixels / kPixelsPerCentimetre);
    } else if (word == "resolution") {
      answer = Pair(kPixelsPerCentimetre, kPixelsPerCentimetre);
    } else if (word == "pixel aspect ratio") {
      answer = "1";
    } else if (word == "colors" || word == "max colors") {
      answer = "16777216";
    } else if (word == "z buffer depth") {
      answer = "32";
    } else {
      WriteString(data, "");
      return Error(errc::kUnknownOption, "unrecognised device information item '" + std::string(item) + "'");
    }
    WriteString(data, answer);
    return Done{};
  });
}
