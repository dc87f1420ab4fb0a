#pragma once
// ZDbEntAttribute, the root of the attribute handles. A handle names one
// kind of attribute on one entity; the value itself lives in the graphics
// library and is never kept here. Each operation opens the entity's segment
// by key, makes one graphics call and closes the segment again, asking
// CurrentManager() afresh for every call.
//
// A handle borrows its entity: it must not outlive it, and it sees a change
// of the entity's key. Copies share the entity and own their name.
#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/attributes/zdb_ent_attribute_type.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEntAttribute {
 public:
  virtual ~ZDbEntAttribute();

  ZDbEntAttributeType GetAttributeType() const;
  ZDbEntity const& GetEntity() const;
  // A copy of the attribute name, the word that the existence test asks for.
  ZString GetAttributeName() const;

  // Whether `spec` (or the attribute name when `spec` is empty) exists
  // locally on the entity. False, with no graphics call, for key -1.
  virtual bool IsAttributeSet(ZString spec) const;
  // Tests for a colour, whatever this handle's kind: the entity first and,
  // with `walkUp`, then each owner in turn until one has it. The walk ends
  // below the root and below the segment "/include library", which is never
  // tested unless it is the entity itself. False for key -1.
  bool IsAttributeSet(bool walkUp, ZString spec) const;

 protected:
  ZDbEntAttribute(ZDbEntAttributeType type, ZDbEntity const& entity, ZString const& name);

  // Manager operations in the shapes that the family calls them in.
  using TextCall = void (ZelmoSceneward::*)(char const*);
  using PlainCall = void (ZelmoSceneward::*)();
  using ShowCall = void (ZelmoSceneward::*)(ZString&);
  using ShowOneCall = void (ZelmoSceneward::*)(char const*, ZString&);
  using ShowOneNetCall = bool (ZelmoSceneward::*)(int, long long const*, char const*, ZString&);

  // The entity's key as it is now.
  long long GetKey() const;
  // The key isn't -1: the guard of every operation.
  bool HasKey() const;
  // The guard of unsets and local reads: the key isn't -1 and the attribute
  // exists locally (asked by its name as a whole).
  bool IsSetLocally() const;

  // The bracket around one call on the entity's segment; no guard.
  void OpenSegment() const;
  void CloseSegment() const;
  void CallInSegment(TextCall call, ZString const& text) const;

  // The shapes of the family. Each makes no graphics call when a guard
  // fails, and the reads then answer "".
  // Sets `text`; guarded by the key and by `text` not being empty.
  void SetNonEmpty(TextCall set, ZString const& text) const;
  // Sets `text`, empty or not; guarded by the key alone.
  void SetAnyText(TextCall set, ZString const& text) const;
  // Removes the attribute, or the part `name` of it, if it is set locally.
  void UnSetLocal(PlainCall unset) const;
  void UnSetLocal(TextCall unset, ZString const& name) const;
  // The local value, or the local value of the part `name`.
  ZString ShowLocal(ShowCall show) const;
  ZString ShowLocal(ShowOneCall show, ZString const& name) const;
  // The value of the part `name` in force on the segment, inherited or not;
  // guarded by the key alone.
  ZString ShowNet(ShowOneNetCall show, ZString const& name) const;

 private:
  ZDbEntAttributeType attributeType_;
  ZDbEntity const* entity_;
  ZString attributeName_;
};
