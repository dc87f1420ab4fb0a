// ZString: printf-style formatted text, with the format given or loaded as
// a string resource.
#include <cstdarg>
#include <cstdio>
#include <optional>
#include <string>

#include "platform/wide_format.h"
#include "sceneward/foundation/zstring.h"

namespace {

enum class ResourceForm { kNarrow, kWide };

// String resource `id` of `module` as a format; a missing one is empty.
ZString LoadedFormat(unsigned long id, void* module, ResourceForm form) {
  ZString format;
  if (form == ResourceForm::kNarrow) {
    format.LoadString8(id, module);
  } else {
    format.LoadString16(id, module);
  }
  return format;
}

}  // namespace

void ZString::FormatV(ZString fmt, va_list args) {
  if (fmt.IsUnicode()) {
    // The C library's wide printf works in its own wchar_t, so 16-bit
    // formats have a formatter of their own.
    const std::optional<WideString> text = platform::FormatWide(fmt.GetAsWChar_T(), args);
    if (text) {
      CopyFrom(text->data(), static_cast<int>(text->size()));
    } else {
      CopyFrom(u"", -1);
    }
    return;
  }
  va_list counting;
  va_copy(counting, args);
  const int needed = std::vsnprintf(nullptr, 0, fmt.GetAsMBCS(), counting);
  va_end(counting);
  if (needed < 0) {
    CopyFrom("", -1);
    return;
  }
  // The exact length is known, so one pass fills the whole text; the given
  // length keeps a 0 that %c may have put in it.
  std::string text(static_cast<size_t>(needed) + 1, '\0');
  std::vsnprintf(text.data(), text.size(), fmt.GetAsMBCS(), args);
  CopyFrom(text.data(), needed);
}

void ZString::Format(ZString fmt, ...) {
  va_list args;
  va_start(args, fmt);
  FormatV(fmt, args);
  va_end(args);
}

void ZString::Format(unsigned long id, void* module, ...) {
  va_list args;
  va_start(args, module);
  FormatV(LoadedFormat(id, module, ResourceForm::kWide), args);
  va_end(args);
}

void ZString::Format16(unsigned long id, void* module, ...) {
  va_list args;
  va_start(args, module);
  FormatV(LoadedFormat(id, module, ResourceForm::kWide), args);
  va_end(args);
}

void ZString::Format8(unsigned long id, void* module, ...) {
  va_list args;
  va_start(args, module);
  FormatV(LoadedFormat(id, module, ResourceForm::kNarrow), args);
  va_end(args);
}

ZString LoadZString(ZString fmt, ...) {
  ZString text;
  va_list args;
  va_start(args, fmt);
  text.FormatV(fmt, args);
  va_end(args);
  return text;
}

ZString LoadZString(unsigned long id, void* module, ...) {
  ZString text;
  va_list args;
  va_start(args, module);
  text.FormatV(LoadedFormat(id, module, ResourceForm::kWide), args);
  va_end(args);
  return text;
}

ZString LoadZString16(unsigned long id, void* module, ...) {
  ZString text;
  va_list args;
  va_start(args, module);
  text.FormatV(LoadedFormat(id, module, ResourceForm::kWide), args);
  va_end(args);
  return text;
}

ZString LoadZString8(unsigned long id, void* module, ...) {
  ZString text;
  va_list args;
  va_start(args, module);
  text.FormatV(LoadedFormat(id, module, ResourceForm::kNarrow), args);
  va_end(args);
  return text;
}
