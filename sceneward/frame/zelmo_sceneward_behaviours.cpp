// The graphics operations that do more, or less, than hand their arguments
// on: each keeps an oddity of the engine's interface in one place.
#include "hc/hc.h"
#include "sceneward/frame/zelmo_sceneward.h"

// The engine may hold the matrix in double precision; reading it as floats
// would then lose what the double form keeps exact. The open segment's key
// comes from reopening it as ".", through this manager's own table like any
// other open and close.
void ZelmoSceneward::HC_Show_Modelling_Matrix(float* m) {
  const long long key = HC_Open_Segment(".");
  HC_Close_Segment();
  if (!HC_Check_Double_Precision(key, "modelling matrix")) {
    ::HC_Show_Modelling_Matrix(m);
    return;
  }
  double exact[16];
  ::HC_DShow_Modelling_Matrix(exact);
  for (int i = 0; i < 16; ++i) m[i] = static_cast<float>(exact[i]);
}

// The engine's priority is 32 bits wide, whatever a long is here.
bool ZelmoSceneward::HC_Show_Priority(long long key, long* priority) {
  if (priority == nullptr) return false;
  int value = 0;
  const bool explicitlySet = ::HC_Show_Priority(key, &value);
  *priority = value;
  return explicitlySet;
}

// The weight count is left out on purpose: the engine gets a null in its
// place and skips it, and the caller's variable keeps what it held.
void ZelmoSceneward::HC_Show_NURBS_Curve_Size(long long key, int* degree, int* cp_count,
                                              int* /*weight_count*/, int* knot_count) {
  ::HC_Show_NURBS_Curve_Size(key, degree, cp_count, nullptr, knot_count);
}

void ZelmoSceneward::HC_Define_System_Options(char const* list) {
  ::HC_Define_System_Options(list);
  mIsInitialized = true;
}

void ZelmoSceneward::HC_Reset_System() {
  ::HC_Reset_System();
  mIsInitialized = false;
}

// The typed overloads take the same float triples as the untyped ones and
// share their body; the call is not virtual, so a host's manager sees one
// operation called, not two.
void ZelmoSceneward::HC_Compute_Transformed_Points(int count, ht_point const* points,
                                                   float const* matrix, ht_point* out_points) {
  ZelmoSceneward::HC_Compute_Transformed_Points(count, static_cast<void const*>(points), matrix,
                                                static_cast<void*>(out_points));
}

double ZelmoSceneward::HC_Compute_Vector_Length(ht_point* vector) {
  return ZelmoSceneward::HC_Compute_Vector_Length(static_cast<void const*>(vector));
}

void ZelmoSceneward::HC_Show_Shell(long long key, int* pcount, HOOPS3DVec* points,
                                   int* flist_length, int* face_list) {
  ZelmoSceneward::HC_Show_Shell(key, pcount, static_cast<void*>(points), flist_length, face_list);
}
