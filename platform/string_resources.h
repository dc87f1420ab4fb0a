#pragma once
// Numbered string resources, kept per module handle. A module registers its
// table once (typically from static initialisation) and text is then loaded
// by number, as string resources are loaded from a module's image elsewhere.
// Registration and loading may happen on any thread.
#include <map>

#include "platform/wide_char.h"

namespace platform {

using StringTable = std::map<unsigned, WideString>;

// Gives `module` the strings of `table`, replacing any table it had. Any
// handle value is a valid key, null included.
void RegisterStringTable(void* module, StringTable table);

// Removes the table of `module`; a module without one is left alone.
void UnregisterStringTable(void* module);

// Copies string `id` of `module` into `buffer` as multibyte text under the
// current C locale, truncated to whole characters that fit in
// `bufferChars - 1` bytes, and terminates it. A unit the locale cannot
// represent becomes '?'. Returns the number of bytes copied, without the
// terminator. A missing module or id, or an empty string, answers 0 with an
// empty buffer; a null `buffer` or a `bufferChars` below 1 answers 0 and
// writes nothing.
int LoadStringNarrow(void* module, unsigned id, char* buffer, int bufferChars);

// Copies string `id` of `module` into `buffer`, truncated to
// `bufferChars - 1` units, and terminates it. Returns the number of units
// copied, without the terminator. A missing module or id, or an empty
// string, answers 0 with an empty buffer; a null `buffer` or a `bufferChars`
// below 1 answers 0 and writes nothing.
int LoadStringWide(void* module, unsigned id, WideChar* buffer, int bufferChars);

}  // namespace platform
