// ZString: construction, assignment, borrowing and state.
#include "sceneward/foundation/zstring.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "platform/text_conversion.h"

namespace {

// Room for any of the number formats: "%f" of the largest double prints 309
// digits before the point.
struct NumberText {
  char text[400];
};

__attribute__((format(printf, 1, 2))) NumberText PrintNumber(const char* format, ...) {
  NumberText number;
  va_list args;
  va_start(args, format);
  std::vsnprintf(number.text, sizeof number.text, format, args);
  va_end(args);
  return number;
}

}  // namespace

ZString::ZString() { CopyFrom("", -1); }
ZString::ZString(char c) { CopyFrom(&c, 1); }
ZString::ZString(WideChar c) { CopyFrom(&c, 1); }
ZString::ZString(int value) { CopyFrom(PrintNumber("%d", value).text); }
ZString::ZString(long value) { CopyFrom(PrintNumber("%ld", value).text); }
ZString::ZString(float value) { CopyFrom(PrintNumber("%f", static_cast<double>(value)).text); }
ZString::ZString(double value) { CopyFrom(PrintNumber("%lf", value).text); }
ZString::ZString(long long value) { CopyFrom(PrintNumber("%lld", value).text); }
ZString::ZString(const char* text, int len) { CopyFrom(text, len); }
ZString::ZString(const unsigned short* text, int len) { CopyFrom(text, len); }
ZString::ZString(const WideChar* text, int len) { CopyFrom(text, len); }
ZString::ZString(const int* text, int len) { CopyFrom(text, len); }
ZString::ZString(const std::string& text, int len) { CopyFrom(text.c_str(), len); }
ZString::ZString(const WideString& text, int len) { CopyFrom(text.c_str(), len); }
ZString::ZString(const ZString& other, int len) { CopyFrom(other, len); }

ZString::~ZString() { ClearPtr(); }

ZString& ZString::operator=(const ZString& other) {
  CopyFrom(other, -1);
  return *this;
}

void ZString::AssignNarrow(const char* p, int len) const {
  if (p == nullptr || len < 0) {
    narrowText.assign(p != nullptr ? p : "");
  } else {
    narrowText.assign(p, static_cast<size_t>(len));
  }
  wideText.clear();
  narrowIsCurrent = true;
  // Last, because `p` may be the text that refPtr owns or borrows.
  ClearPtr();
}

void ZString::AssignWide(const WideChar* p, int len) const {
  if (p == nullptr || len < 0) {
    wideText.assign(p != nullptr ? p : u"");
  } else {
    wideText.assign(p, static_cast<size_t>(len));
  }
  narrowText.clear();
  narrowIsCurrent = false;
  ClearPtr();
}

void ZString::CopyFrom(const char* p, int len) { AssignNarrow(p, len); }

void ZString::CopyFromUTF8(const char* p, int len) { AssignNarrow(p, len); }

void ZString::CopyFrom(const WideChar* p, int len) { AssignWide(p, len); }

void ZString::CopyFrom(const unsigned short* p, int len) {
  if (p == nullptr) {
    AssignWide(u"", -1);
  } else {
    AssignWide(reinterpret_cast<const WideChar*>(p), len);
  }
}

void ZString::CopyFrom(const int* p, int len) {
  static constexpr int kEmpty[] = {0};
  if (p == nullptr) {
    p = kEmpty;
    len = -1;
  }
  if (len < 0) {
    len = 0;
    while (p[len] != 0) ++len;
  }
  std::vector<WideChar> units(static_cast<size_t>(len) + 1);
  for (int i = 0; i < len; ++i) units[i] = static_cast<WideChar>(p[i]);
  AssignWide(units.data(), len);
}

void ZString::CopyFrom(const ZString& s, int len) {
  if (len >= 0 && len < s.GetLength()) {
    const ZString head = s.Mid(0, static_cast<unsigned>(len));
    CopyFrom(head, -1);
  } else if (s.narrowIsCurrent) {
    AssignNarrow(s.GetAsMBCS(), -1);
  } else {
    AssignWide(s.GetAsWChar_T(), -1);
  }
}

void ZString::Borrow(void* p, uint32_t flags) const {
  ClearPtr();
  refFlags = flags;
  refPtr = p;
  narrowText.clear();
  wideText.clear();
  narrowIsCurrent = flags == kRefNarrow;
}

void ZString::ReferenceFrom(const char* p) {
  if (p == nullptr) {
    AssignNarrow("", -1);
  } else {
    Borrow(const_cast<char*>(p), kRefNarrow);
  }
}

void ZString::ReferenceFrom(const WideChar* p) {
  if (p == nullptr) {
    AssignWide(u"", -1);
  } else {
    Borrow(const_cast<WideChar*>(p), kRefWide);
  }
}

void ZString::ReferenceFrom(const unsigned short* p) {
  ReferenceFrom(reinterpret_cast<const WideChar*>(p));
}

void ZString::ReferenceFrom(const int* p) { CopyFrom(p, -1); }

void ZString::ReferenceFrom(const ZString& s) {
  if (s.refFlags == kRefNarrow || s.refFlags == kRefWide) {
    Borrow(s.refPtr, s.refFlags);
  } else {
    CopyFrom(s, -1);
  }
}

void ZString::Empty() { CopyFrom("", -1); }

void ZString::ClearPtr() const {
  if ((refFlags & kRefOwned) != 0) std::free(refPtr);
  refPtr = nullptr;
  refFlags = 0;
}

bool ZString::ForceReferenceIntoCopy() const {
  if ((refFlags & kRefNarrow) != 0) {
    AssignNarrow(static_cast<const char*>(refPtr), -1);
    return true;
  }
  if ((refFlags & kRefWide) != 0) {
    AssignWide(static_cast<const WideChar*>(refPtr), -1);
    return true;
  }
  return false;
}

int ZString::GetLength() const {
  if ((refFlags & kRefNarrow) != 0) return static_cast<int>(std::strlen(static_cast<const char*>(refPtr)));
  if ((refFlags & kRefWide) != 0) {
    return static_cast<int>(platform::WideLength(static_cast<const WideChar*>(refPtr)));
  }
  return static_cast<int>(narrowIsCurrent ? narrowText.size() : wideText.size());
}

bool ZString::IsEmpty() const { return GetLength() == 0; }

bool ZString::IsUnicode() const { return !narrowIsCurrent; }
