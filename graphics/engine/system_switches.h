#pragma once
// The system options that steer the database itself, read where the
// database needs them. They live with the other system options, outside
// the database lock.

namespace graphics {

// "update control": whether changes to the database mark their segments
// for redraw (on by default).
bool UpdateControlOn();
// "bounding volumes": whether the kept bounding volumes can be shown (on by
// default).
bool BoundingVolumesOn();

}  // namespace graphics
