#pragma once
// The graphics engine's C interface: the retained-mode HC_ functions and the
// immediate-mode HIC_ functions that callbacks use while an update draws.
// The declarations are generated from functions.def and
// immediate_functions.def, so the two lists are the only place a signature
// is written.
#include <stddef.h>
#include <stdint.h>
#ifndef __cplusplus
#include <stdbool.h>
#endif

#ifdef __cplusplus
extern "C" {
#endif

// Receives every error, warning and informational report of the engine.
// msgv holds the message lines, stackv the names of the engine routines that
// were active (the exported function first).
typedef void (*HC_Error_Handler)(int category, int specific, int severity, int msgc,
                                 char const* const* msgv, int stackc,
                                 char const* const* stackv);

// A callback as registered by name. The engine calls it with the arguments of
// the drawing point it is attached to, so callers cast their function to this
// generic type and back.
typedef void (*HC_Callback)(void);

// Immediate-mode records. The engine owns them; callers only hold pointers.
typedef struct hic_rendition_s HIC_Rendition;        // net attributes, transforms, device
typedef struct hic_text_info_s HIC_Text_Info;        // one text item ready to draw
typedef struct hic_segment_info_s HIC_Segment_Info;  // the segment being entered
typedef struct hic_karacter_info_s HIC_Text_Karacter_Info;  // per-character attributes
// Temporary geometry. A polyline is one kind of geometry, and the engine makes
// no other kind, so both names stand for the same record: a polyline can be
// handed to HIC_Free_Geometry without a cast.
typedef struct hic_geometry_s HIC_Geometry;
typedef struct hic_geometry_s HIC_Polyline;

// Plain values, laid out as consecutive floats so that arrays of them are
// the float triples of the retained-mode interface.
typedef struct HIC_Point { float x, y, z; } HIC_Point;
typedef struct HIC_Vector { float x, y, z; } HIC_Vector;
typedef struct HIC_DC_Point { float x, y, z; } HIC_DC_Point;  // device pixels and depth
typedef struct HIC_RGB { float red, green, blue; } HIC_RGB;   // each 0 to 1
typedef struct HIC_Int_Rectangle { int left, right, bottom, top; } HIC_Int_Rectangle;

#define HC_FUNCTION(result, name, parameters, arguments) result name parameters;
#include "functions.def"
#include "immediate_functions.def"
#undef HC_FUNCTION

#ifdef __cplusplus
}
#endif
