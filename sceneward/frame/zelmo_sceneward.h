#pragma once
// The library's manager: every retained-mode graphics call of the scene model
// goes through the calling thread's manager (CurrentManager()), which hands it
// to the engine. Almost every operation is a plain forward; the few that are
// not hold the decisions about text encoding, string lengths and double
// precision in one place. The operations are listed in
// manager_operations.def, in the order of the virtual table.
//
// Managers are interchangeable as far as graphics calls go: no operation uses
// the object for more than the flags below.
#include <cstdint>

#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/zelmo_sceneward_interface.h"

// The size of a Windows critical section. ZelmoSceneward::mLock is exported
// with this size for hosts built against it; the library never touches it.
struct ZCriticalSectionRecord {
  unsigned char bytes[40];
};

class ZelmoSceneward : public ZelmoScenewardInterface {
 public:
  ZelmoSceneward();
  // Copy and assignment take all three fields; nothing else is per object.
  ZelmoSceneward(const ZelmoSceneward& other);
  ZelmoSceneward& operator=(const ZelmoSceneward& other);
  ~ZelmoSceneward() override;

#define SW_MANAGER_OPERATION(shape, result, name, parameters, arguments) \
  result name parameters override;
#define SW_MANAGER_NONVIRTUAL(shape, result, name, parameters, arguments) result name parameters;
#include "sceneward/frame/manager_operations.def"

  // Strips one pair of backquotes that encloses the whole of `s` (the engine
  // shows quoted option values with their quotes). Anything else is left.
  void RemoveBackQuotes(ZString& s);

  void SetIsInitialized(bool initialized);

  // The process's graphics error handler, with the signature that
  // HC_Define_Error_Handler takes: filters, tells the host and, with the
  // popup enabled, hands the error on to the engine's own reporter.
  static void Sceneward_Report_Error(int category, int specific, int severity, int msgc,
                                     char const* const* msgv, int stackc,
                                     char const* const* stackv);

  // Whether Sceneward_Report_Error passes errors on to the engine's own
  // reporter. One value for the process; SetErrorHandler clears it.
  static bool mErrorPopupEnabled;
  // Exported for hosts; nothing in the library uses them.
  static ZCriticalSectionRecord mLock;
  static void* mLockStream;

  // The object's state, in the exported layout after the table pointer.
  uint32_t mStreamLockThread;  // the thread that holds the stream lock; 0 = none
  void* mShaderHooks;          // what GetShaderHooks hands out
  bool mIsInitialized;         // system options defined and not reset since
};
