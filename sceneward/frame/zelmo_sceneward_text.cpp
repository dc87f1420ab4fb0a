// The operations whose text needs more than a buffer or a view: the choice
// between the engine's narrow and 16-bit forms, and outputs whose length is
// asked for first.
#include <algorithm>
#include <cstddef>
#include <vector>

#include "hc/hc.h"
#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/zelmo_sceneward.h"

namespace {

// The engine's word for 16-bit text, both as an encoding to store and as the
// one it reports for text stored that way.
constexpr char kUnicodeEncoding[] = "unicode";

// A zeroed work buffer for a 16-bit result of `length` units and its
// terminator; a negative length (a failed query) gives the terminator alone.
// The allocation throws on failure, leaving the engine as it was.
std::vector<unsigned short> WideResultBuffer(int length) {
  return std::vector<unsigned short>(static_cast<std::size_t>(std::max(length, 0)) + 1);
}

}  // namespace

void ZelmoSceneward::RemoveBackQuotes(ZString& s) {
  const int length = s.GetLength();
  if (length < 2) return;
  bool quoted;
  if (s.IsUnicode()) {
    const WideChar* units = s.GetAsWChar_T();
    quoted = units[0] == u'`' && units[length - 1] == u'`';
  } else {
    const char* bytes = s.GetAsMBCS();
    quoted = bytes[0] == '`' && bytes[length - 1] == '`';
  }
  if (quoted) s = s.Mid(1, static_cast<unsigned>(length - 2));
}

// Text that the narrow form can carry is stored narrow; only a wide string
// with a unit beyond ASCII goes to the engine as 16-bit text.
long long ZelmoSceneward::HC_Insert_Text(double x, double y, double z, ZString const& text) {
  if (text.RequiresUnicode()) {
    return ::HC_Insert_Text_With_Encoding(x, y, z, kUnicodeEncoding, text.GetAsShorts());
  }
  return ::HC_Insert_Text(x, y, z, text.GetAsMBCS());
}

bool ZelmoSceneward::HC_Compute_Text_Extent(char const* segment, ZString const& text, float* xfrac,
                                            float* yfrac) {
  if (text.RequiresUnicode()) {
    return ::HC_Compute_Text_Extent_With_Enc(segment, kUnicodeEncoding, text.GetAsShorts(), xfrac,
                                             yfrac);
  }
  return ::HC_Compute_Text_Extent(segment, text.GetAsMBCS(), xfrac, yfrac);
}

bool ZelmoSceneward::HC_Compute_Text_Extent_By_Path(int count, long long* keys, ZString const& text,
                                                    float* xfrac, float* yfrac) {
  if (text.RequiresUnicode()) {
    return ::HC_Compute_Text_Extent_Enc_Path(count, keys, kUnicodeEncoding, text.GetAsShorts(),
                                             xfrac, yfrac);
  }
  return ::HC_Compute_Text_Extent_By_Path(count, keys, text.GetAsMBCS(), xfrac, yfrac);
}

// The text comes back in the encoding it was stored in, so it is read with
// its encoding and taken into `text` in the matching form. Text of length 0
// leaves every output as it was.
void ZelmoSceneward::HC_Show_Text(long long key, float* x, float* y, float* z, ZString& text) {
  int length = 0;
  ::HC_Show_Text_Length(key, &length);
  if (length <= 0) return;
  // `length` counts bytes, two per 16-bit unit; room for a 16-bit terminator.
  std::vector<unsigned short> units((static_cast<std::size_t>(length) + 3) / 2);
  ZString encoding;
  ::HC_Show_Text_With_Encoding(key, x, y, z, encoding.GetBuffer8(4096), units.data());
  if (encoding.CompareNoCase(ZString(kUnicodeEncoding), false) == 0) {
    text.CopyFrom(units.data(), -1);
  } else {
    text.CopyFrom(reinterpret_cast<const char*>(units.data()), -1);
  }
}

// User options may be longer than any fixed buffer, so their length is asked
// for first.
void ZelmoSceneward::HC_Show_User_Options(ZString& list) {
  int length = 0;
  ::HC_Show_User_Options_Length(&length);
  ::HC_Show_User_Options(list.GetBuffer8(static_cast<unsigned>(length) + 1));
}

// The length of all user options bounds that of any one of them, so the one
// length query serves both.
void ZelmoSceneward::HC_Show_One_User_Option(char const* which, ZString& value) {
  int length = 0;
  ::HC_Show_User_Options_Length(&length);
  ::HC_Show_One_User_Option(which, value.GetBuffer8(static_cast<unsigned>(length) + 1));
  RemoveBackQuotes(value);
}

bool ZelmoSceneward::HC_PShow_One_Net_User_Option(int count, long long const* keys,
                                                  char const* which, ZString& value) {
  const bool found = ::HC_PShow_One_Net_User_Option(count, keys, which, value.GetBuffer8(4096));
  RemoveBackQuotes(value);
  return found;
}

void ZelmoSceneward::HC_Show_Unicode_Options(ZString& list) {
  int length = 0;
  ::HC_Show_Unicode_Options_Length(&length);
  std::vector<unsigned short> buffer = WideResultBuffer(length);
  ::HC_Show_Unicode_Options(buffer.data());
  list.CopyFrom(buffer.data(), -1);
}

void ZelmoSceneward::HC_Show_One_Unicode_Option(ZString const& which, ZString& value) {
  int length = 0;
  ::HC_Show_One_Uni_Option_Length(which.GetAsShorts(), &length);
  std::vector<unsigned short> buffer = WideResultBuffer(length);
  ::HC_Show_One_Unicode_Option(which.GetAsShorts(), buffer.data());
  value.CopyFrom(buffer.data(), -1);
  RemoveBackQuotes(value);
}

bool ZelmoSceneward::HC_PShow_One_Net_Unicode_Opt(int count, long long const* keys,
                                                  ZString const& which, ZString& value) {
  int length = 0;
  ::HC_PShow_One_Net_Uni_Opt_Len(count, keys, which.GetAsShorts(), &length);
  std::vector<unsigned short> buffer = WideResultBuffer(length);
  const bool found = ::HC_PShow_One_Net_Unicode_Opt(count, keys, which.GetAsShorts(), buffer.data());
  value.CopyFrom(buffer.data(), -1);
  RemoveBackQuotes(value);
  return found;
}
