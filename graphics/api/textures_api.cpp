// Texture definitions, global and local to the current segment, and line
// styles; with their searches.
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "attributes/line_styles.h"
#include "attributes/textures.h"
#include "hc/hc.h"
#include "traversal/name_search.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Run;
using api::WriteString;

namespace {

Status RequireNames(const char* name, const char* definition) {
  auto required = api::Require(name, "name");
  if (!required.ok()) return required;
  if (std::string_view(name).empty()) return Error(errc::kBadName, "a texture or line style needs a name");
  return api::Require(definition, "definition");
}

Error Unknown(std::string_view what, std::string_view name) {
  return Error(errc::kBadName, "no " + std::string(what) + " named '" + std::string(name) + "'");
}

const std::map<std::string, TextureDefinition>* LocalTable(Session& session) {
  const Segment* segment = session.SegmentToRead();
  const auto* local = segment ? segment->attributes().Find<LocalTextures>() : nullptr;
  return local ? &local->textures : nullptr;
}

void ShowDefinition(const char* routine, const char* name, char* definition, bool local) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    auto required = api::Require(name, "texture name");
    if (!required.ok()) return required.error();
    const auto* table = local ? LocalTable(session) : &GlobalTextures();
    const auto found = table ? table->find(name) : std::map<std::string, TextureDefinition>::const_iterator();
    if (table == nullptr || found == table->end()) {
      WriteString(definition, "");
      return Unknown("texture", name);
    }
    WriteString(definition, found->second.Format(TextureDefinitionFamily()));
    return Done{};
  });
}

template <typename Table>
std::vector<std::string> Names(const Table& table) {
  std::vector<std::string> names;
  for (const auto& [name, definition] : table) names.push_back(name);
  return names;
}

// The next name of the innermost search; false when it is used up.
bool FindNext(name_search::Kind kind, char* name, const char* routine) {
  auto next = name_search::Next(kind);
  if (!next.ok()) {
    api::ReportIfFailed(next.error(), routine);
    return false;
  }
  if (!next.value()) return false;
  WriteString(name, *next.value());
  return true;
}

}  // namespace

extern "C" void HC_Define_Texture(char const* name, char const* definition) {
  Run(Access::kWrite, __func__, [&](Session&) -> Status {
    auto required = RequireNames(name, definition);
    if (!required.ok()) return required.error();
    auto parsed = ParseTextureDefinition(definition);
    if (!parsed.ok()) return parsed.error();
    GlobalTextures()[name] = std::move(parsed.value());
    return Done{};
  });
}

extern "C" void HC_Define_Local_Texture(char const* name, char const* definition) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto required = RequireNames(name, definition);
    if (!required.ok()) return required.error();
    auto parsed = ParseTextureDefinition(definition);
    if (!parsed.ok()) return parsed.error();
    if (Segment* segment = session.SegmentToChange()) {
      segment->MutableAttributes().FindOrAdd<LocalTextures>().textures[name] = std::move(parsed.value());
    }
    return Done{};
  });
}

extern "C" void HC_Show_Texture(char const* name, char* definition) {
  ShowDefinition(__func__, name, definition, false);
}

extern "C" void HC_Show_Local_Texture(char const* name, char* definition) {
  ShowDefinition(__func__, name, definition, true);
}

extern "C" void HC_UnDefine_Texture(char const* name) {
  Run(Access::kWrite, __func__, [&](Session&) -> Status {
    auto required = api::Require(name, "texture name");
    if (!required.ok()) return required.error();
    if (GlobalTextures().erase(name) == 0) return Unknown("texture", name);
    return Done{};
  });
}

extern "C" void HC_UnDefine_Local_Texture(char const* name) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto required = api::Require(name, "texture name");
    if (!required.ok()) return required.error();
    Segment* segment = session.SegmentToChange();
    const auto* local = segment ? segment->attributes().Find<LocalTextures>() : nullptr;
    if (local == nullptr || !local->textures.contains(name)) return Unknown("local texture", name);
    auto& attributes = segment->MutableAttributes();
    auto& textures = attributes.FindOrAdd<LocalTextures>().textures;
    textures.erase(name);
    if (textures.empty()) attributes.Remove(LocalTextures::kKind);
    return Done{};
  });
}

extern "C" void HC_Begin_Texture_Search(void) {
  Run(Access::kRead, __func__, [&](Session&) -> Status {
    name_search::Begin(name_search::Kind::kTextures, Names(GlobalTextures()));
    return Done{};
  });
}

extern "C" void HC_Begin_Local_Texture_Search(void) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    const auto* table = LocalTable(session);
    name_search::Begin(name_search::Kind::kTextures, table ? Names(*table) : std::vector<std::string>());
    return Done{};
  });
}

extern "C" void HC_Show_Texture_Count(int* count) {
  auto found = name_search::Count(name_search::Kind::kTextures);
  if (!found.ok()) return api::ReportIfFailed(found.error(), __func__);
  api::Write(count, found.value());
}

extern "C" bool HC_Find_Texture(char* name) { return FindNext(name_search::Kind::kTextures, name, __func__); }

extern "C" void HC_End_Texture_Search(void) {
  api::ReportIfFailed(name_search::End(name_search::Kind::kTextures), __func__);
}

extern "C" void HC_Define_Line_Style(char const* name, char const* definition) {
  Run(Access::kWrite, __func__, [&](Session&) -> Status {
    auto required = RequireNames(name, definition);
    if (!required.ok()) return required.error();
    return DefineLineStyle(name, definition);
  });
}

extern "C" void HC_Show_Line_Style(char const* style, char* definition) {
  Run(Access::kRead, __func__, [&](Session&) -> Status {
    auto required = api::Require(style, "line style name");
    if (!required.ok()) return required.error();
    const std::string* found = FindLineStyle(style);
    if (found == nullptr) return Unknown("line style", style);
    WriteString(definition, *found);
    return Done{};
  });
}

extern "C" void HC_Show_Line_Style_Size(char const* style, int* size) {
  Run(Access::kRead, __func__, [&](Session&) -> Status {
    auto required = api::Require(style, "line style name");
    if (!required.ok()) return required.error();
    const std::string* found = FindLineStyle(style);
    if (found == nullptr) return Unknown("line style", style);
    api::Write(size, api::WrittenLength(*found));
    return Done{};
  });
}

extern "C" void HC_UnDefine_Line_Style(char const* name) {
  Run(Access::kWrite, __func__, [&](Session&) -> Status {
    auto required = api::Require(name, "line style name");
    if (!required.ok()) return required.error();
    if (!UnDefineLineStyle(name)) return Unknown("line style", name);
    return Done{};
  });
}

extern "C" void HC_Begin_Line_Style_Search(void) {
  Run(Access::kRead, __func__, [&](Session&) -> Status {
    name_search::Begin(name_search::Kind::kLineStyles, LineStyleNames());
    return Done{};
  });
}

extern "C" bool HC_Find_Line_Style(char* name) { return FindNext(name_search::Kind::kLineStyles, name, __func__); }

extern "C" void HC_End_Line_Style_Search(void) {
  api::ReportIfFailed(name_search::End(name_search::Kind::kLineStyles), __func__);
}
