#pragma once
// The abstract manager: the door between the scene model and the graphics
// engine. A host may hand the library a manager of its own that implements
// this interface; the library's own is ZelmoSceneward.
#include <cstddef>
#include <cstdint>

#include "hc/hc.h"

class ZString;

// Point records as some callers hold them: three floats, the layout of the
// engine's point triples, so that arrays of them pass wherever the engine
// takes points.
struct ht_point {
  float x, y, z;
};
struct HOOPS3DVec {
  float x, y, z;
};

class ZelmoScenewardInterface {
 public:
  virtual ~ZelmoScenewardInterface();

#define SW_INTERFACE_DECLARE_PURE(result, name, parameters) virtual result name parameters = 0;
#define SW_INTERFACE_DECLARE_PLAIN SW_INTERFACE_DECLARE_PURE
#define SW_INTERFACE_DECLARE_OPENING SW_INTERFACE_DECLARE_PURE
#define SW_INTERFACE_DECLARE_CLOSING SW_INTERFACE_DECLARE_PURE
#define SW_INTERFACE_DECLARE_EMPTY SW_INTERFACE_DECLARE_PURE
#define SW_INTERFACE_DECLARE_CUSTOM SW_INTERFACE_DECLARE_PURE
// A host's manager that knows nothing of initialisation is never initialised.
#define SW_INTERFACE_DECLARE_CUSTOM_NOT_PURE(result, name, parameters) \
  virtual result name parameters { return false; }
#define SW_MANAGER_OPERATION(shape, result, name, parameters, arguments) \
  SW_INTERFACE_DECLARE_##shape(result, name, parameters)
#include "sceneward/frame/manager_operations.def"
#undef SW_INTERFACE_DECLARE_PURE
#undef SW_INTERFACE_DECLARE_PLAIN
#undef SW_INTERFACE_DECLARE_OPENING
#undef SW_INTERFACE_DECLARE_CLOSING
#undef SW_INTERFACE_DECLARE_EMPTY
#undef SW_INTERFACE_DECLARE_CUSTOM
#undef SW_INTERFACE_DECLARE_CUSTOM_NOT_PURE
};

// The destructor and one slot per row of the table. A host's manager is
// built against this count: a row too many or too few moves every later
// operation to another slot.
inline constexpr int kManagerVirtualSlots = 1
#define SW_MANAGER_OPERATION(shape, result, name, parameters, arguments) +1
#include "sceneward/frame/manager_operations.def"
    ;
static_assert(kManagerVirtualSlots == 385, "the manager's virtual table has 385 slots");
