// Text strings, in ISO Latin-1 or another encoding.
#include <memory>
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "geometry/text.h"
#include "hc/hc.h"

using graphics::Done;
using graphics::EncodedText;
using graphics::Error;
using graphics::GeometryType;
using graphics::Result;
using graphics::Session;
using graphics::Status;
using graphics::Text;
using graphics::TextEncoding;
using graphics::api::Access;
using graphics::api::Require;
using graphics::api::Run;
using graphics::api::ToPoint;
using graphics::api::Write;
using graphics::api::WritePoint;
using graphics::api::WriteString;

namespace {

Result<long long> InsertText(Session& session, double x, double y, double z, TextEncoding encoding,
                             const void* text) {
  auto required = Require(text, "text");
  if (!required.ok()) return required.error();
  auto position = ToPoint(x, y, z, "text position");
  if (!position.ok()) return position.error();
  graphics::Segment* segment = session.SegmentToChange();
  if (segment == nullptr) return -1LL;
  auto item = std::make_unique<Text>(position.value(), EncodedText::Read(encoding, text));
  return session.database().Insert(*segment, std::move(item)).key();
}

Result<const Text*> FindText(Session& session, long long key) {
  auto item = session.database().FindGeometry(key, GeometryType::kText);
  if (!item.ok()) return item.error();
  return static_cast<const Text*>(item.value());
}

}  // namespace

extern "C" long long HC_Insert_Text(double x, double y, double z, char const* text) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) {
    return InsertText(session, x, y, z, TextEncoding::kIsoLatinOne, text);
  });
}

extern "C" long long HC_Insert_Text_With_Encoding(double x, double y, double z, char const* encoding,
                                                   void const* text) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto required = Require(encoding, "encoding");
    if (!required.ok()) return required.error();
    const auto found = graphics::FindTextEncoding(encoding);
    if (!found) return Error(graphics::errc::kUnknownOption, "unrecognised text encoding '" + std::string(encoding) + "'");
    return InsertText(session, x, y, z, *found, text);
  });
}

// Text in another encoding comes back in ISO Latin-1, '?' standing for what
// it cannot hold.
extern "C" void HC_Show_Text(long long key, float* x, float* y, float* z, char* text) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindText(session, key);
    if (!found.ok()) return found.error();
    WritePoint(x, y, z, found.value()->position());
    WriteString(text, found.value()->text().ToLatin1());
    return Done{};
  });
}

extern "C" void HC_Show_Text_Length(long long key, int* length) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindText(session, key);
    if (!found.ok()) return found.error();
    Write(length, static_cast<int>(found.value()->text().byte_length()));
    return Done{};
  });
}

extern "C" void HC_Show_Text_With_Encoding(long long key, float* x, float* y, float* z, char* encoding, void* text) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindText(session, key);
    if (!found.ok()) return found.error();
    const EncodedText& stored = found.value()->text();
    WritePoint(x, y, z, found.value()->position());
    WriteString(encoding, graphics::TextEncodingWord(stored.encoding()));
    if (text != nullptr) stored.CopyWithTerminator(text);
    return Done{};
  });
}

extern "C" void HC_Show_Text_Encoding(long long key, char* encoding) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindText(session, key);
    if (!found.ok()) return found.error();
    WriteString(encoding, graphics::TextEncodingWord(found.value()->text().encoding()));
    return Done{};
  });
}

extern "C" void HC_Move_Text(long long key, double x, double y, double z) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto position = ToPoint(x, y, z, "text position");
    if (!position.ok()) return position.error();
    auto item = session.database().FindGeometry(key, GeometryType::kText);
    if (!item.ok()) return item.error();
    static_cast<Text*>(item.value())->MoveTo(position.value());
    return Done{};
  });
}
