#pragma once
// ZString, the library's one text type.
//
// A string holds its text in one of two forms: narrow, as bytes in the
// process's multibyte encoding (whatever the host's C locale makes of them),
// or wide, as 16-bit code units. One form is the authority; the other member
// is scratch space that each view of that form rewrites from the authority.
// A string may also borrow a caller's text without copying it, or hand out a
// buffer of its own for the caller to write into.
//
// Lengths, indices and comparisons count bytes while the string is narrow and
// units while it is wide; there is no surrogate logic. Every view is `const`
// yet may rewrite the object, so a string is not safe to read from two
// threads at once. Pointers from a view stay valid until the next non-const
// operation or the next view of the same form.
//
// Copies never share a borrowed pointer and always go through the
// 0-terminated view of the source, so an embedded 0 cuts a copy short.
// There is deliberately no move constructor: a temporary is copied.
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/wide_char.h"

class ZString {
 public:
  // Construction. A length of -1 means "up to the first 0"; other lengths
  // are taken as they stand (see CopyFrom).

  // The empty narrow string.
  ZString();
  // One narrow byte; a 0 byte gives a string of length 1.
  ZString(char c);
  // One wide unit; the string is wide and has length 1.
  ZString(WideChar c);
  // The number printed by "%d", "%ld", "%f" (the float widened), "%lf" or
  // "%lld" under the current C locale, so the decimal point follows the
  // locale. Always narrow.
  ZString(int value);
  ZString(long value);
  ZString(float value);
  ZString(double value);
  ZString(long long value);
  // CopyFrom of the text; a null pointer gives the empty string in the
  // pointer's form.
  ZString(const char* text, int len = -1);
  ZString(const unsigned short* text, int len = -1);
  ZString(const WideChar* text, int len = -1);
  // Text of one 32-bit element per character; wide (see CopyFrom).
  ZString(const int* text, int len = -1);
  // CopyFrom of the standard string's character data.
  ZString(const std::string& text, int len = -1);
  ZString(const WideString& text, int len = -1);
  // CopyFrom(other, len); with the default length, the copy constructor.
  ZString(const ZString& other, int len = -1);
  // Frees an owned buffer from GetBuffer8/GetBuffer16; a borrowed text and
  // arrays from GetAsInts are left to their owners.
  ~ZString();

  // CopyFrom(other, -1); assigning a string to itself keeps its text.
  ZString& operator=(const ZString& other);

  // Assignment. Each ends any borrowing and frees an owned buffer, but
  // reads `p` first, so `p` may point into this string's own text.

  // Makes the string narrow. A null `p` or a negative `len` takes `p` up to
  // its first 0 (null as ""); otherwise exactly `len` bytes are taken,
  // embedded 0s included, however long the text at `p` really is.
  void CopyFrom(const char* p, int len = -1);
  // The same operation: the bytes are taken as they are, and are narrow text
  // like any other.
  void CopyFromUTF8(const char* p, int len = -1);
  // Makes the string wide, with the same rules in units.
  void CopyFrom(const WideChar* p, int len = -1);
  void CopyFrom(const unsigned short* p, int len = -1);
  // Makes the string wide from the low 16 bits of each 32-bit element. A
  // negative `len` counts the elements before the first 0; null is "".
  void CopyFrom(const int* p, int len = -1);
  // Takes `s` through its 0-terminated view, keeping its form. A `len` from
  // 0 to below s.GetLength() copies s.Mid(0, len) instead.
  void CopyFrom(const ZString& s, int len = -1);

  // Borrows `p` without copying: the caller keeps it alive and unchanged in
  // place until the string next folds it in (ForceReferenceIntoCopy and
  // every operation that edits or searches). Changes the caller makes
  // before that show through. A null `p` gives the empty string in the
  // pointer's form. `p` must not point into this string.
  void ReferenceFrom(const char* p);
  void ReferenceFrom(const WideChar* p);
  void ReferenceFrom(const unsigned short* p);
  // Always copies, as CopyFrom(p, -1).
  void ReferenceFrom(const int* p);
  // Borrows what `s` borrows, if `s` borrows; otherwise copies `s`.
  void ReferenceFrom(const ZString& s);

  // Makes the string the empty narrow string, whatever its form was.
  void Empty();

  // Takes a borrowed text or an owned buffer into the members, ending the
  // borrowing (the owner's text is no longer read) or freeing the buffer
  // (the caller's pointer to it dies). Returns false if there was none.
  bool ForceReferenceIntoCopy() const;

  // Views.

  // The narrow text. A wide string is converted afresh at each call and
  // stays wide. If a unit cannot be represented in the current C locale,
  // the previous content of the narrow scratch member comes back instead,
  // typically "", and nothing reports the failure.
  const char* GetAsMBCS() const;
  // GetAsMBCS under another name; there is no UTF-8 encoding of its own.
  const char* GetAsUTF8() const;
  operator const char*() const;

  // The wide text. A narrow string is converted afresh at each call and
  // stays narrow; an invalid byte sequence gives the previous content of
  // the wide scratch member.
  const WideChar* GetAsWChar_T() const;
  const unsigned short* GetAsShorts() const;
  operator const WideChar*() const;
  operator const unsigned short*() const;

  // A fresh malloc'd array of GetLength() + 1 elements, one per wide unit,
  // 0-terminated (positions the wide view does not reach are 0). The
  // string forgets the array at once: the caller must free() it, and it
  // stays readable after the string has changed or died.
  const int* GetAsInts() const;
  operator const int*() const;

  // The narrow text with each wide unit of 128 or above replaced by
  // `replacement`; a narrow string comes back unfiltered. The string stays
  // wide. A wide string answers from its wide member as it stands, so one
  // that borrows wide text or has a wide buffer open must be folded in
  // first (ForceReferenceIntoCopy), or it answers from stale content.
  const char* GetAsASCII(char replacement) const;

  // Folds in any borrowed text, then the narrow view as a standard string.
  const std::string& GetAsSTLString() const;
  operator const std::string&() const;
  // Folds in any borrowed text, then the wide view as a standard string.
  const WideString& GetAsSTLWString() const;
  operator const WideString&() const;
  // The wide member's data as it stands: no conversion, and a borrowed text
  // or open buffer is not looked at.
  const WideChar* wstring_to_wchart_t() const;

  // State and size.

  // Bytes while narrow, units while wide. A borrowed text or an open buffer
  // is measured live, up to its first 0.
  int GetLength() const;
  // GetLength() is 0.
  bool IsEmpty() const;
  // The wide form is the authority.
  bool IsUnicode() const;
  // True only for a wide string with a unit of 128 or above.
  bool RequiresUnicode() const;
  // Makes a narrow string wide, with its converted text; a wide string is
  // left alone.
  void ForceToUnicode();

  // Element access.

  // The element at `i`, which must be at most GetLength(). A narrow byte is
  // sign-extended, so 0xE9 comes back as 0xFFE9: it is a byte, not a
  // character.
  WideChar GetAt(unsigned i) const;
  // Stores `c` at `i`; an `i` not below GetLength() does nothing. Storing a
  // unit of 128 or above into a narrow string first makes the whole string
  // wide, after which `i` counts units: if the wide text is shorter than the
  // narrow one was, an `i` beyond it stores nothing.
  void SetAt(unsigned i, WideChar c);

  // A malloc'd buffer of at least max(minChars, GetLength()) characters,
  // and never fewer than the current text takes in the buffer's form, plus
  // a terminator. It holds the current text for the caller to write over;
  // the string becomes narrow (GetBuffer8) or wide (the others) and
  // measures the buffer live. There is no release call: the string frees
  // the buffer at the first operation that folds it in, and the caller's
  // pointer dies there.
  char* GetBuffer8(unsigned minChars);
  WideChar* GetBuffer16(unsigned minChars);
  WideChar* GetBufferT(unsigned minChars);

  // Loads string resource `id` of `module`, narrow (LoadString8) or wide
  // (the others), up to 1023 characters. Returns true if it was found and
  // not empty; otherwise the string is empty in the form of the call.
  bool LoadString8(unsigned long id, void* module);
  bool LoadString16(unsigned long id, void* module);
  bool LoadStringW(unsigned long id, void* module);

  // Comparison.

  // Negative, 0 or positive as this string sorts before, with or after
  // `other`; only the sign is meaningful. Two narrow strings compare as
  // unsigned bytes; otherwise both wide views compare as unsigned units, so
  // a narrow and a wide string are equal only if conversion makes them the
  // same units. A shorter string that is a prefix of the other sorts first.
  // Folds in this string's borrowed text. The bool is ignored.
  int Compare(const ZString& other, bool ignored = false) const;
  // Compare on copies taken through MakeLower: only the C library's
  // single-byte case mapping applies. The bool is ignored.
  int CompareNoCase(const ZString& other, bool ignored = false) const;

  // All by Compare. The overloads for character pointers are there because
  // a literal would otherwise match the built-in pointer comparison (through
  // this class's conversions) just as well as these, which is ambiguous.
#define SW_ZSTRING_COMPARISON(op)                                                             \
  bool operator op(const ZString& other) const { return Compare(other) op 0; }               \
  bool operator op(const char* other) const { return Compare(ZString(other)) op 0; }         \
  bool operator op(const WideChar* other) const { return Compare(ZString(other)) op 0; }
  SW_ZSTRING_COMPARISON(==)
  SW_ZSTRING_COMPARISON(!=)
  SW_ZSTRING_COMPARISON(<)
  SW_ZSTRING_COMPARISON(>)
  SW_ZSTRING_COMPARISON(<=)
  SW_ZSTRING_COMPARISON(>=)
#undef SW_ZSTRING_COMPARISON

  // Concatenation.

  // Appends `other`. An empty `other` changes nothing; an empty string
  // becomes a copy of `other`, in its form. Otherwise the result is narrow
  // only if both are narrow: a narrow string that gets a wide tail becomes
  // wide.
  const ZString& operator+=(const ZString& other);
  // A copy of this string with `other` appended by +=.
  ZString operator+(const ZString& other) const;

  // Cutting and case.

  // The min(GetLength() - start, count) characters from `start`, in this
  // string's form; a `start` at or beyond the end gives the empty narrow
  // string, whatever the form.
  ZString Mid(unsigned start, unsigned count) const;
  // Mid(start, GetLength() - start).
  ZString Mid(unsigned start) const;

  // Changes case element by element through the C library's toupper and
  // tolower under the current locale: each byte while narrow, each unit
  // while wide. Only ASCII, and in some locales the values below 256,
  // change; there is no wide case mapping.
  void MakeUpper();
  void MakeLower();

  // Operations that search, edit, split or parse work in this string's form:
  // a narrow string against the narrow view of the other argument, a wide
  // one against its wide view. Each first folds in a borrowed text or an
  // open buffer. Positions count bytes or units of that form; -1 means
  // nothing was found.

  // Searching. `start` is taken as an unsigned position, so a negative
  // `start` of a forward search finds nothing, and -1 for a backward search
  // means the end of the string.

  // The first match of `what` at or after `start`. An empty `what` matches
  // at `start` if `start` is at most the length.
  int Find(const ZString& what, int start = 0) const;
  // The last match of `what` beginning at or before `start`. An empty
  // `what` matches at the smaller of `start` and the length.
  int ReverseFind(const ZString& what, int start = -1) const;
  // Find and ReverseFind on copies of both strings taken through MakeLower.
  int FindNoCase(const ZString& what, int start = 0) const;
  int ReverseFindNoCase(const ZString& what, int start = -1) const;
  // The first element at or after `start` that is in `set`; an empty `set`
  // finds nothing.
  int FindOneOf(const ZString& set, int start = 0) const;
  // The last element at or before `start` that is in `set`.
  int ReverseFindOneOf(const ZString& set, int start = -1) const;
  // The first element at or after `start` that is not in `set`; with an
  // empty `set` that is `start` itself, if it is inside the string.
  int FindOneNotOf(const ZString& set, int start = 0) const;
  // The last element at or before `start` that is not in `set`; an empty
  // string finds nothing.
  int ReverseFindOneNotOf(const ZString& set, int start = -1) const;
  // The run from `start` up to the first element in `set` (SpanExcluding)
  // or not in `set` (SpanIncluding), or to the end if there is none.
  ZString SpanExcluding(const ZString& set, int start = 0) const;
  ZString SpanIncluding(const ZString& set, int start = 0) const;

  // Cutting.

  // Mid(0, n): the whole string if `n` reaches beyond it.
  ZString Left(unsigned n) const;
  // Mid(GetLength() - n), in unsigned arithmetic: an `n` greater than the
  // length gives the empty string, not the whole string.
  ZString Right(unsigned n) const;

  // Editing in place.

  // Removes `count` elements from `index`. A negative `count`, or one that
  // reaches the end, cuts everything from `index`. Returns the new length.
  int Delete(unsigned index, int count = 1);
  // Puts `s` before the element at `index`; an `index` beyond the end
  // appends. A wide `s` makes a narrow string wide. Returns the new length.
  int Insert(unsigned index, const ZString& s);
  // Replaces every occurrence of `what` with `with`, left to right, never
  // searching inserted text again. The string becomes wide if it is narrow
  // and either argument is wide; otherwise it keeps its form. An empty
  // `what` matches nothing. Returns the number of replacements.
  int Replace(const ZString& what, const ZString& with);
  // Replace(what, ""): removes whole occurrences of `what`, not a set of
  // characters. Returns their count.
  int Remove(const ZString& what);
  // TrimLeft(set), then TrimRight(set). There is no default set: pass the
  // whitespace to remove.
  ZString& Trim(const ZString& set);
  // Removes the leading (TrimLeft) or trailing (TrimRight) elements that are
  // in `set`. A string made only of such elements becomes the empty narrow
  // string, whatever its form was.
  ZString& TrimLeft(const ZString& set);
  ZString& TrimRight(const ZString& set);
  // Reverses the order of the bytes or units, so a multibyte character or a
  // surrogate pair comes out reversed too.
  void MakeReverse();

  // Paths. `sep` separates directories; a dot after the last separator,
  // and not first in the name, starts the extension, so ".profile" and
  // "dir/.profile" have none, and "a." has the empty one.

  // Everything up to and including the last `sep`; empty if there is none.
  ZString GetFilePath(char sep) const;
  // Everything behind the last `sep`; the whole string if there is none.
  ZString GetFileName(char sep) const;
  // GetFileName without the extension and its dot.
  ZString GetFileNameNoExtension(char sep) const;
  // The extension without its dot; empty if there is none.
  ZString GetExtension(char sep) const;
  // Cuts the extension and its dot off; a name without one is left alone.
  void RemoveExtension(char sep);

  // Splitting. Both append to `out` (which is not cleared) the pieces of
  // this string from `start` on, cut at each delimiter: adjacent delimiters
  // give an empty piece between them, a trailing one an empty last piece,
  // and there is always at least one piece. Without `caseSensitive` the
  // delimiters are matched on copies taken through MakeLower, and the
  // pieces keep their case.

  // Cuts at every element that is in `delims`.
  void SplitByChars(const ZString& delims, std::vector<ZString>& out, bool caseSensitive = true,
                    int start = 0) const;
  // Cuts at every occurrence of `delim`. An empty `delim` matches nothing,
  // so the rest of the string from `start` is the one piece.
  void SplitByString(const ZString& delim, std::vector<ZString>& out, bool caseSensitive = true,
                     int start = 0) const;

  // Numbers. The leading number of the text, read like sscanf with "%d",
  // "%ld", "%lf" and "%lld" under the current C locale: leading whitespace
  // is skipped, reading stops at the first element that does not fit, and
  // text that starts with no number gives 0. A wide string is read up to
  // its first unit of 128 or above. A value out of the type's range comes
  // back as the C library's conversion leaves it.
  int GetAsInt() const;
  long GetAsLong() const;
  double GetAsDouble() const;
  // GetAsDouble, narrowed to float.
  float GetAsFloat() const;
  long long GetAsI64() const;

  // Formatted text. The string becomes the text of `fmt` with the
  // arguments, in the form of `fmt`, whatever form the arguments or this
  // string had. A narrow format follows the C library's printf, so its %s
  // takes narrow text (and its %ls the C library's wchar_t text); a wide
  // format follows platform::FormatWide, so its %s, %ls, %c and %lc take
  // 16-bit text and units; text arguments are pointers (GetAsMBCS(),
  // GetAsWChar_T()), never ZString objects. 64-bit integers are "%lld",
  // not "%I64d". A format that cannot be formatted (see
  // platform::FormatWide, or an argument the narrow printf cannot convert)
  // gives the empty string in the format's form.
  void Format(ZString fmt, ...);
  void FormatV(ZString fmt, va_list args);
  // Loads the format as wide string resource `id` of `module` (a missing
  // one is the empty format) and formats with it.
  void Format(unsigned long id, void* module, ...);
  void Format16(unsigned long id, void* module, ...);
  // The same with the format loaded as a narrow resource.
  void Format8(unsigned long id, void* module, ...);

 private:
  enum class SplitMode { kByChars, kByString };
  // The loop behind SplitByChars and SplitByString.
  void SplitInternal(const ZString& delim, std::vector<ZString>& out, SplitMode mode,
                     bool caseSensitive, int start) const;


  // refFlags: how refPtr is read. Bit 1 narrow text, bit 2 wide text, bit 4
  // owned (to be freed). 0 means refPtr carries no text.
  static constexpr uint32_t kRefNarrow = 1;
  static constexpr uint32_t kRefWide = 2;
  static constexpr uint32_t kRefOwned = 4;

  // The bodies of the CopyFrom forms, callable from const views that fold a
  // reference in.
  void AssignNarrow(const char* p, int len) const;
  void AssignWide(const WideChar* p, int len) const;
  // Sets the borrowing state; both members are emptied.
  void Borrow(void* p, uint32_t flags) const;
  // Frees an owned buffer, then forgets refPtr.
  void ClearPtr() const;
  // The wide text that is current: the borrowed or owned wide text, or the
  // wide member.
  const WideChar* CurrentWide() const;
  // Copies `length` elements of `text` and a terminator into a fresh
  // malloc'd buffer of at least max(minChars, GetLength(), length) elements
  // plus one, which this string then owns as its text in `form`.
  void* OpenBuffer(const void* text, size_t length, unsigned minChars, size_t elementSize,
                   uint32_t form);
  // Changes case of every element with `map` (toupper or tolower).
  void MapCase(int (*map)(int));

  // The views rewrite all of these, hence mutable.
  mutable std::string narrowText;  // the text when narrow; else scratch
  mutable WideString wideText;     // the text when wide; else scratch
  mutable bool narrowIsCurrent = true;
  mutable uint32_t refFlags = 0;
  mutable void* refPtr = nullptr;  // borrowed or owned text, or null
};

// A new string formatted by FormatV with `fmt` (LoadZString), or with the
// format loaded as the wide (LoadZString, LoadZString16) or narrow
// (LoadZString8) string resource `id` of `module`.
ZString LoadZString(ZString fmt, ...);
ZString LoadZString(unsigned long id, void* module, ...);
ZString LoadZString16(unsigned long id, void* module, ...);
ZString LoadZString8(unsigned long id, void* module, ...);
