#include "system/global_definitions.h"

#include "attributes/line_styles.h"
#include "attributes/priorities.h"
#include "attributes/textures.h"
#include "system/callback_names.h"
#include "system/highlights.h"

namespace graphics {

void ClearGlobalDefinitions() {
  GlobalTextures().clear();
  ClearLineStyles();
  ClearHighlights();
  Priorities().clear();
  callback_names::Clear();
}

}  // namespace graphics
