// The option-list attributes of the current segment: visibility,
// selectability, heuristics, rendering and driver options, text font,
// conditions and callbacks. Each call forwards to the shared form.
#include "api/option_list_calls.h"
#include "hc/hc.h"

using graphics::AttributeKind;
namespace api = graphics::api;

extern "C" void HC_Set_Visibility(char const* list) { api::SetOptions(__func__, AttributeKind::kVisibility, list); }
extern "C" void HC_Show_Visibility(char* list) { api::ShowOptions(__func__, AttributeKind::kVisibility, list); }
extern "C" void HC_Show_One_Visibility(char const* name, char* value) {
  api::ShowOneOption(__func__, AttributeKind::kVisibility, name, value);
}
extern "C" bool HC_PShow_One_Net_Visibility(int count, long long const* keys, char const* name, char* value) {
  return api::ShowOneNetOption(__func__, AttributeKind::kVisibility, count, keys, name, value);
}
extern "C" void HC_UnSet_Visibility(void) { api::UnSetOptions(__func__, AttributeKind::kVisibility); }
extern "C" void HC_UnSet_One_Visibility(char const* name) {
  api::UnSetOneOption(__func__, AttributeKind::kVisibility, name);
}

extern "C" void HC_Set_Selectability(char const* list) {
  api::SetOptions(__func__, AttributeKind::kSelectability, list);
}
extern "C" void HC_Show_Selectability(char* list) { api::ShowOptions(__func__, AttributeKind::kSelectability, list); }
extern "C" void HC_UnSet_Selectability(void) { api::UnSetOptions(__func__, AttributeKind::kSelectability); }

extern "C" void HC_Set_Heuristics(char const* list) { api::SetOptions(__func__, AttributeKind::kHeuristics, list); }
extern "C" void HC_Show_Heuristics(char* list) { api::ShowOptions(__func__, AttributeKind::kHeuristics, list); }
extern "C" void HC_Show_One_Heuristic(char const* name, char* value) {
  api::ShowOneOption(__func__, AttributeKind::kHeuristics, name, value);
}
extern "C" void HC_PShow_Net_Heuristics(int count, long long const* keys, char* list) {
  api::ShowNetOptions(__func__, AttributeKind::kHeuristics, count, keys, list);
}
extern "C" bool HC_PShow_One_Net_Heuristic(int count, long long const* keys, char const* name, char* value) {
  return api::ShowOneNetOption(__func__, AttributeKind::kHeuristics, count, keys, name, value);
}
extern "C" void HC_UnSet_Heuristics(void) { api::UnSetOptions(__func__, AttributeKind::kHeuristics); }
extern "C" void HC_UnSet_One_Heuristic(char const* name) {
  api::UnSetOneOption(__func__, AttributeKind::kHeuristics, name);
}

extern "C" void HC_Set_Rendering_Options(char const* list) {
  api::SetOptions(__func__, AttributeKind::kRenderingOptions, list);
}
extern "C" void HC_Show_Rendering_Options(char* list) {
  api::ShowOptions(__func__, AttributeKind::kRenderingOptions, list);
}
extern "C" void HC_Show_One_Rendering_Option(char const* name, char* value) {
  api::ShowOneOption(__func__, AttributeKind::kRenderingOptions, name, value);
}
extern "C" bool HC_PShow_One_Net_Rendering_Opti(int count, long long const* keys, char const* name, char* value) {
  return api::ShowOneNetOption(__func__, AttributeKind::kRenderingOptions, count, keys, name, value);
}
extern "C" void HC_UnSet_Rendering_Options(void) { api::UnSetOptions(__func__, AttributeKind::kRenderingOptions); }
extern "C" void HC_UnSet_One_Rendering_Option(char const* name) {
  api::UnSetOneOption(__func__, AttributeKind::kRenderingOptions, name);
}

extern "C" void HC_Set_Driver_Options(char const* list) {
  api::SetOptions(__func__, AttributeKind::kDriverOptions, list);
}
extern "C" void HC_Show_Driver_Options(char* list) { api::ShowOptions(__func__, AttributeKind::kDriverOptions, list); }
extern "C" void HC_Show_One_Driver_Option(char const* name, char* value) {
  api::ShowOneOption(__func__, AttributeKind::kDriverOptions, name, value);
}

extern "C" void HC_Set_Text_Font(char const* list) { api::SetOptions(__func__, AttributeKind::kTextFont, list); }
extern "C" void HC_Show_Text_Font(char* list) { api::ShowOptions(__func__, AttributeKind::kTextFont, list); }
extern "C" void HC_Show_One_Text_Font(char const* name, char* value) {
  api::ShowOneOption(__func__, AttributeKind::kTextFont, name, value);
}
extern "C" void HC_UnSet_Text_Font(void) { api::UnSetOptions(__func__, AttributeKind::kTextFont); }

extern "C" void HC_Set_Conditions(char const* list) { api::SetOptions(__func__, AttributeKind::kConditions, list); }
extern "C" void HC_Show_Conditions(char* list) { api::ShowOptions(__func__, AttributeKind::kConditions, list); }
extern "C" void HC_UnSet_Conditions(void) { api::UnSetOptions(__func__, AttributeKind::kConditions); }
extern "C" void HC_UnSet_One_Condition(char const* name) {
  api::UnSetOneOption(__func__, AttributeKind::kConditions, name);
}

extern "C" void HC_Set_Callback(char const* list) { api::SetOptions(__func__, AttributeKind::kCallbacks, list); }
extern "C" void HC_Show_Callback(char* list) { api::ShowOptions(__func__, AttributeKind::kCallbacks, list); }
extern "C" void HC_UnSet_Callback(void) { api::UnSetOptions(__func__, AttributeKind::kCallbacks); }
extern "C" void HC_UnSet_One_Callback(char const* point) {
  api::UnSetOneOption(__func__, AttributeKind::kCallbacks, point);
}
