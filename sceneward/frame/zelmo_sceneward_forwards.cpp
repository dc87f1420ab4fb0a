// The generated bodies: every operation of the table whose shape says how it
// forwards. Each hands its arguments to the engine function of its name and
// returns its result; nothing is checked, since the engine reports failures
// through the error handler.
#include "hc/hc.h"
#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"

// An output string lends the engine a buffer of its own. The engine writes
// without a limit, and 4096 is what every caller of these functions gives.
// The string measures the buffer itself, so nothing follows the call.
#define SW_STRING_OUT(s) (s).GetBuffer8(4096)
#define SW_STRING_IN(s) (s).GetAsMBCS()
#define SW_WIDE_IN(s) (s).GetAsShorts()

#define SW_FORWARD_PLAIN(result, name, parameters, arguments) \
  result ZelmoSceneward::name parameters { return ::name arguments; }
// An open segment or a running search holds the lock until its close. The
// lock is the current thread's manager's, whichever manager is called.
#define SW_FORWARD_OPENING(result, name, parameters, arguments) \
  result ZelmoSceneward::name parameters {                      \
    CurrentManager()->Lock();                                   \
    return ::name arguments;                                    \
  }
#define SW_FORWARD_CLOSING(result, name, parameters, arguments) \
  result ZelmoSceneward::name parameters {                      \
    ::name arguments;                                           \
    UnLock();                                                   \
  }
// Lock, UnLock and the other hooks do nothing here; a host's own manager may
// give them a meaning.
#define SW_FORWARD_EMPTY(result, name, parameters, arguments) \
  result ZelmoSceneward::name parameters {}
#define SW_FORWARD_CUSTOM(result, name, parameters, arguments)
#define SW_FORWARD_CUSTOM_NOT_PURE(result, name, parameters, arguments)

#define SW_MANAGER_OPERATION(shape, result, name, parameters, arguments) \
  SW_FORWARD_##shape(result, name, parameters, arguments)
#define SW_MANAGER_NONVIRTUAL(shape, result, name, parameters, arguments) \
  SW_FORWARD_##shape(result, name, parameters, arguments)
#include "sceneward/frame/manager_operations.def"
