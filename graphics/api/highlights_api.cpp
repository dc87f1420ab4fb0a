// Highlights: an item drawn with a style's attributes at the next update.
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "attributes/option_string.h"
#include "hc/hc.h"
#include "system/highlights.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Run;

namespace {

// The highlight the arguments describe: live keys (or -1 for an include),
// an existing style segment, options in the option grammar.
Result<Highlight> Described(Session& session, int count, const long long* keys, const char* style,
                            const char* options) {
  if (count <= 0) return Error(errc::kOutOfRange, "a highlight needs at least one key");
  for (const void* p : {static_cast<const void*>(keys), static_cast<const void*>(style),
                        static_cast<const void*>(options)}) {
    auto required = api::Require(p, "highlight argument");
    if (!required.ok()) return required.error();
  }
  Highlight highlight;
  highlight.keys.assign(keys, keys + count);
  for (long long key : highlight.keys) {
    if (key == -1) continue;
    auto item = session.database().FindItem(key);
    if (!item.ok()) return item.error();
  }
  auto segment = session.FindSegment(style);
  if (!segment.ok()) return segment.error();
  if (segment.value() == nullptr) return Error(errc::kNoSuchSegment, "no style segment '" + std::string(style) + "'");
  highlight.style = segment.value()->key();
  auto parsed = ParseOptionList(options);
  if (!parsed.ok()) return parsed.error();
  highlight.options = options;
  return highlight;
}

}  // namespace

extern "C" void HC_Define_Highlight(int count, long long const* keys, char const* style, char const* options) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto highlight = Described(session, count, keys, style, options);
    if (!highlight.ok()) return highlight.error();
    AddHighlight(std::move(highlight.value()));
    return Done{};
  });
}

// Removing a highlight that is not defined does nothing.
extern "C" void HC_UnDefine_Highlight(int count, long long const* keys, char const* style, char const* options) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto highlight = Described(session, count, keys, style, options);
    if (!highlight.ok()) return highlight.error();
    RemoveHighlight(highlight.value());
    return Done{};
  });
}
