#include "sceneward/scene/attributes/zdb_at_rendering_options.h"

#include "sceneward/frame/thread_registry.h"

namespace {

constexpr char kAttributeLock[] = "attribute lock";

// The items of the comma-separated `locks` that differ from `name`,
// ignoring case, joined again in their order. Items are compared as they
// stand: blanks around them count.
ZString ItemsOtherThan(ZString locks, ZString const& name) {
  ZString kept;
  while (!locks.IsEmpty()) {
    const int comma = locks.Find(ZString(","));
    const ZString item = comma == -1 ? locks : locks.Left(comma);
    locks = comma == -1 ? ZString() : locks.Mid(comma + 1);
    if (item.CompareNoCase(name) == 0) continue;
    if (!kept.IsEmpty()) kept += ZString(",");
    kept += item;
  }
  return kept;
}

}  // namespace

ZDbAtRenderingOptions ZDbEnSegment::RenderingOptions() const {
  return ZDbAtRenderingOptions(*this);
}

ZDbAtRenderingOptions::ZDbAtRenderingOptions(ZDbEnSegment const& segment)
    : ZDbAttribute(kAttributeRenderingOptions, segment, "rendering options") {}

void ZDbAtRenderingOptions::Set(ZString const& options) {
  SetNonEmpty(&ZelmoSceneward::HC_Set_Rendering_Options, options);
}

ZString ZDbAtRenderingOptions::Get() const {
  return ShowLocal(&ZelmoSceneward::HC_Show_Rendering_Options);
}

void ZDbAtRenderingOptions::UnSetOne(ZString const& name) {
  UnSetLocal(&ZelmoSceneward::HC_UnSet_One_Rendering_Option, name);
}

ZString ZDbAtRenderingOptions::GetOne(ZString const& name) const {
  return ShowLocal(&ZelmoSceneward::HC_Show_One_Rendering_Option, name);
}

ZString ZDbAtRenderingOptions::GetOneNet(ZString const& name) const {
  return ShowNet(&ZelmoSceneward::HC_PShow_One_Net_Rendering_Opti, name);
}

void ZDbAtRenderingOptions::SetOneAttributeLock(ZString const& name) {
  SetAnyText(&ZelmoSceneward::HC_Set_Rendering_Options, ZString(kAttributeLock) + "=" + name);
}

void ZDbAtRenderingOptions::UnSetOneAttributeLock(ZString const& name) {
  if (!HasKey()) return;
  OpenSegment();
  ZString locks;
  // Asks for the lock option alone: any other rendering option would make
  // the attribute as a whole exist.
  if (CurrentManager()->HC_Show_Existence("rendering options='attribute lock'") != 0) {
    CurrentManager()->HC_Show_One_Rendering_Option(kAttributeLock, locks);
  }
  if (locks.IsEmpty()) {
    CurrentManager()->HC_UnSet_One_Rendering_Option(kAttributeLock);
  } else if (locks.Find(ZString(",")) == -1) {
    if (locks.CompareNoCase(name) == 0) {
      CurrentManager()->HC_UnSet_One_Rendering_Option(kAttributeLock);
    }
  } else {
    const ZString kept = ItemsOtherThan(locks, name);
    CurrentManager()->HC_UnSet_One_Rendering_Option(kAttributeLock);
    // Written back even when nothing is left: "()" keeps the option set.
    const ZString rewritten = ZString(kAttributeLock) + "=(" + kept + ")";
    CurrentManager()->HC_Set_Rendering_Options(rewritten.GetAsMBCS());
  }
  CloseSegment();
}

void ZDbAtRenderingOptions::UnSetAttributeLock() { UnSetOne(kAttributeLock); }
