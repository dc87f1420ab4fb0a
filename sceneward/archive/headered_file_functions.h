#pragma once
// File functions for the zip layer that keep a fixed block of bytes, a
// header, in front of the zip stream. The zip layer sees a stream that
// begins behind the header: every offset it stores, reads or asks for
// counts from the header's end. A new file gets the header written first;
// on reading, the header is assumed, never read or compared.
//
// Two tables make the layer: an inner one that does the input and output,
// on a caller's stream or on C file streams, and an outer one with the zip
// layer's 32-bit table layout, whose opaque value is the inner table.
#include <minizip/ioapi.h>

#include "platform/stream.h"

// A new outer table over `stream`, or, with a null stream, over C file
// streams opened by name. The header block is borrowed: the caller keeps
// it alive as long as the table is in use. A size of 0 means no header.
// Free the result with DestroyHeaderedFileFunctions.
zlib_filefunc_def* CreateHeaderedFileFunctions(platform::Stream* stream, const unsigned char* headerBytes,
                                               int headerSize);

// Frees the outer table and its inner table. Null does nothing.
void DestroyHeaderedFileFunctions(zlib_filefunc_def* outer);
