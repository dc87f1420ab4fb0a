// Text measurement and outlines with the net text attributes of a segment,
// a key path, or a stored text item.
#include <algorithm>
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "api/net_path.h"
#include "geometry/encoded_text.h"
#include "geometry/text.h"
#include "hc/hc.h"
#include "text/text_extent.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Run;

namespace {

Result<AttributePath> SegmentPath(Session& session, const char* segment) {
  auto required = api::Require(segment, "segment");
  if (!required.ok()) return required.error();
  auto found = session.FindSegment(segment);
  if (!found.ok()) return found.error();
  if (found.value() == nullptr) return Error(errc::kNoSuchSegment, "no segment to measure text in");
  return AttributePath::Of(*found.value());
}

Result<std::u32string> Characters(const char* encoding, const void* text) {
  auto required = api::Require(encoding, "encoding");
  if (!required.ok()) return required.error();
  required = api::Require(text, "text");
  if (!required.ok()) return required.error();
  const auto which = FindTextEncoding(encoding);
  if (!which) return Error(errc::kUnknownOption, "unrecognised text encoding '" + std::string(encoding) + "'");
  return EncodedText::Read(*which, text).ToCodePoints();
}

// Writes the extent of the text `text()` gives along the path `path()`
// gives; false and outputs untouched on failure.
template <typename PathOf, typename TextOf>
bool Extent(const char* routine, float* x, float* y, PathOf&& path_of, TextOf&& text_of) {
  return Run(Access::kRead, routine, false, [&](Session& session) -> Result<bool> {
    Result<AttributePath> path = path_of(session);
    if (!path.ok()) return path.error();
    Result<std::u32string> text = text_of(session);
    if (!text.ok()) return text.error();
    auto extent = ComputeTextExtent(path.value(), text.value());
    if (!extent.ok()) return extent.error();
    api::Write(x, extent.value().x_fraction);
    api::Write(y, extent.value().y_fraction);
    return true;
  });
}

Result<std::u32string> PlainText(const char* text) {
  auto required = api::Require(text, "text");
  if (!required.ok()) return required.error();
  return Latin1Characters(text);
}

// Outline of `text` in `segment`; `write(outline)` fills the outputs.
template <typename Write>
void Outline(const char* routine, const char* segment, const char* text, Write&& write) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    auto path = SegmentPath(session, segment);
    if (!path.ok()) return path.error();
    auto plain = PlainText(text);
    if (!plain.ok()) return plain.error();
    auto outline = ComputeTextOutline(path.value(), plain.value());
    if (!outline.ok()) return outline.error();
    write(outline.value());
    return Done{};
  });
}

}  // namespace

extern "C" bool HC_Compute_Text_Extent(char const* segment, char const* text, float* xfrac, float* yfrac) {
  return Extent(
      __func__, xfrac, yfrac, [&](Session& session) { return SegmentPath(session, segment); },
      [&](Session&) { return PlainText(text); });
}

extern "C" bool HC_Compute_Text_Extent_With_Enc(char const* segment, char const* encoding, void const* text,
                                                float* xfrac, float* yfrac) {
  return Extent(
      __func__, xfrac, yfrac, [&](Session& session) { return SegmentPath(session, segment); },
      [&](Session&) { return Characters(encoding, text); });
}

extern "C" bool HC_Compute_Text_Extent_By_Path(int count, long long const* keys, char const* text, float* xfrac,
                                               float* yfrac) {
  return Extent(
      __func__, xfrac, yfrac, [&](Session& session) { return api::NetPath(session, count, keys); },
      [&](Session&) { return PlainText(text); });
}

extern "C" bool HC_Compute_Text_Extent_Enc_Path(int count, long long const* keys, char const* encoding,
                                                void const* text, float* xfrac, float* yfrac) {
  return Extent(
      __func__, xfrac, yfrac, [&](Session& session) { return api::NetPath(session, count, keys); },
      [&](Session&) { return Characters(encoding, text); });
}

extern "C" bool HC_Compute_Text_Extent_By_Key(long long text_key, float* xfrac, float* yfrac) {
  const Text* item = nullptr;
  return Extent(
      __func__, xfrac, yfrac,
      [&](Session& session) -> Result<AttributePath> {
        auto found = session.database().FindGeometry(text_key, GeometryType::kText);
        if (!found.ok()) return found.error();
        item = static_cast<const Text*>(found.value());
        return AttributePath::Of(*item->owner());
      },
      [&](Session&) -> Result<std::u32string> { return item->text().ToCodePoints(); });
}

extern "C" void HC_Compute_Text_Outline_Size(char const* segment, char const* text, int* pcount, int* flist_length) {
  Outline(__func__, segment, text, [&](const TextOutline& outline) {
    api::Write(pcount, static_cast<int>(outline.points.size()));
    api::Write(flist_length, static_cast<int>(outline.faces.size()));
  });
}

extern "C" void HC_Compute_Text_Outline(char const* segment, char const* text, int* pcount, void* points,
                                        int* flist_length, int* face_list) {
  Outline(__func__, segment, text, [&](const TextOutline& outline) {
    api::Write(pcount, static_cast<int>(outline.points.size()));
    api::Write(flist_length, static_cast<int>(outline.faces.size()));
    if (points != nullptr) {
      auto* out = static_cast<float*>(points);
      for (const Point& p : outline.points) *out++ = p.x, *out++ = p.y, *out++ = p.z;
    }
    if (face_list != nullptr) std::copy(outline.faces.begin(), outline.faces.end(), face_list);
  });
}
