#pragma once
// The circular objects of the library (circle, circular arc, chord and
// wedge) are all inserted and shown through three points on the curve; these
// helpers do that once, for the call that each class names.
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/geometry/zgeo_circle.h"

using ZThreePointInsert = long long (ZelmoSceneward::*)(void const* p1, void const* p2,
                                                        void const* p3);
using ZThreePointShow = void (ZelmoSceneward::*)(long long key, void* p1, void* p2, void* p3);

// Inserts the object through the three points of `circle` into the open
// segment and returns its key.
long long InsertThroughThreePoints(ZThreePointInsert insert, ZGeoCircle const& circle);
// The circle through the three points that `show` reads for `key`, whole or
// as an arc as `complete` says; the default circle for key -1, with no
// graphics call.
ZGeoCircle ShowThroughThreePoints(ZThreePointShow show, long long key, bool complete);
