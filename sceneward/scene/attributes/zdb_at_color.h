#pragma once
// ZDbAtColor, the handle of an entity's colour. Besides the plain set and
// show calls it answers which diffuse colour and transparency an entity
// really shows once inheritance along a path is taken into account, by
// explicit queries of the "diffuse color" and "transmission" channels.
//
// Unlike the other attribute handles it is built on any entity. An entity
// that is no segment still has its key given to HC_Open_Segment_By_Key.
#include <vector>

#include "sceneward/foundation/zcolor.h"
#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/attributes/zdb_ent_attribute.h"

class ZDbAtColor : public ZDbEntAttribute {
 public:
  // A channel of a colour.
  enum Type : int {
    kTransmission = 0,
    kDiffuseColor = 1,
    kSpecular = 2,
  };

  // What a channel query answers: f[0..2] are red, green and blue as
  // proportions, f[3] is carried along from the query's starting values.
  union ColorInfo {
    float f[4];
    unsigned char bytes[16];
  };

  explicit ZDbAtColor(ZDbEntity const& entity);

  // Sets the colour specification `spec`; nothing if it is empty.
  void Set(ZString const& spec);
  // Sets `name`=`value`, even if either is empty.
  void SetOne(ZString const& name, ZString const& value);
  // Sets `name` to the red, green and blue of `color`, whether the colour is
  // valid or not; its alpha is not passed on.
  void SetOne(ZString const& name, ZColor const& color);
  // Removes the local colour, or its part `name`; nothing if no colour is
  // set locally.
  void UnSet();
  void UnSetOne(ZString const& name);

  // The local colour specification, or its part `name`; "" if no colour is
  // set locally.
  ZString Get() const;
  ZString GetOne(ZString const& name) const;
  // The local colour as target names and an opaque colour; both outputs are
  // left alone if no colour is set locally.
  void GetByValue(ZString& name, ZColor& color) const;
  // The local colour of `name`, opaque; opaque black if no colour is set
  // locally. Never the invalid colour.
  ZColor GetOneByValue(ZString const& name) const;

  // GetOneNetByValue(name, false, withAlpha, fallback).
  ZColor GetOneNetByValue(ZString const& name, bool withAlpha, ZColor const& fallback) const;
  // The diffuse colour of `name` that the entity shows, with an alpha of 1
  // minus the transmission's red when `withAlpha` is set. `fallback` if the
  // entity has no colour (with `walkUp`, neither has any owner below the
  // root or "/include library"). Without `walkUp` owners are left out of the
  // answer; with it the open segment's inheritance counts.
  ZColor GetOneNetByValue(ZString const& name, bool walkUp, bool withAlpha,
                          ZColor const& fallback) const;
  // The same along the key path of those entities of `path` that have a
  // diffuse colour of their own; `fallback` if none has (or `path` is
  // empty). This entity takes part only if it is in `path`.
  ZColor GetOneNetByValue(ZString const& name, std::vector<ZDbEntity> const& path, bool withAlpha,
                          ZColor const& fallback) const;
  // If the entity has a colour of its own, the channel `type` of `name` as
  // seen from the entity, written to `info`; false otherwise, or when the
  // channel is absent, leaving `info` alone.
  bool FindSpecific(ZString const& name, Type type, ColorInfo& info) const;

 private:
  // The channel `type` of `name` along `keys` (empty: the open segment and
  // its owners), written to `info`. False, with `info` untouched, if the
  // type has no channel or the channel is absent.
  bool GetColorInfo(std::vector<long long> keys, ZString const& name, Type type,
                    ColorInfo& info) const;
  ZColor CommonGetOneNetByValue(ZString const& name, std::vector<long long> const& keys,
                                bool withAlpha, ZColor const& fallback) const;
};
