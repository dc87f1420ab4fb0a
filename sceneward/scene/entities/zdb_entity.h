#pragma once
// ZDbEntity: a small, copyable handle on one object of the graphics
// database, named by its key. The handle owns nothing in the database:
// destroying it touches nothing, and only Delete removes the object. A key
// of -1 names nothing; every operation tolerates it. Each graphics call asks
// CurrentManager() afresh, so a handle has no thread of its own.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_box.h"
#include "sceneward/geometry/zgeo_sphere.h"

// The kinds of database object, one bit each, as a 32-bit signed mask. The
// order is that of the type-name tables. Cutting planes, references and
// grids have no handle class; poly cylinders have one but no factory.
enum ZDbEntityType : int {
  kEntityUnknown = 0,
  kEntitySegment = 0x1,
  kEntityInclude = 0x2,
  kEntityStyle = 0x4,
  kEntityText = 0x8,
  kEntityMarker = 0x10,
  kEntityCircle = 0x20,
  kEntityCircularArc = 0x40,
  kEntityCircularChord = 0x80,
  kEntityCircularWedge = 0x100,
  kEntityEllipse = 0x200,
  kEntityEllipticalArc = 0x400,
  kEntityLine = 0x800,
  kEntityPolyline = 0x1000,
  kEntityNurbsCurve = 0x2000,
  kEntityPolygon = 0x4000,
  kEntityMesh = 0x8000,
  kEntityShell = 0x10000,
  kEntityCuttingPlane = 0x20000,
  kEntityDistantLight = 0x40000,
  kEntityImage = 0x80000,
  kEntityLocalLight = 0x100000,
  kEntitySpotLight = 0x200000,
  kEntityPolyCylinder = 0x400000,
  kEntityReference = 0x800000,
  kEntityGrid = 0x1000000,
};

class ZDbEnSegment;

class ZDbEntity {
 public:
  // A handle on `id`, typed by a comma-separated list of type names (which
  // may be empty; it is not a path). The names are translated before the
  // process-wide name tables are first filled, so the very first entity of
  // a process gets Type 0; and the translation hashes by text address, so
  // any name may go unrecognised and count 0 (see GenerateTypesFromTypeNames).
  ZDbEntity(long long id = -1, char const* typeNames = "");
  // Copies key, type and names; the name tables are not consulted.
  ZDbEntity(ZDbEntity const& other) = default;
  ZDbEntity& operator=(ZDbEntity const& other) = default;
  // Never touches the database.
  virtual ~ZDbEntity();

  long long GetID() const { return ID; }
  ZDbEntityType GetType() const { return Type; }
  // The key isn't -1. Says nothing about whether the object still exists.
  bool IsValid() const { return ID != -1; }
  // Type is exactly the segment bit; a mask with more bits is no segment.
  bool IsSegment() const { return Type == kEntitySegment; }

  // The graphics library's word for this key ("line", "segment", ...),
  // asked even for key -1 (the library then reports the error).
  ZString GetTypeName() const;
  // TypeNames, or when that is empty the names generated from Type in
  // ascending bit order ("" for Type 0). TypeNames itself is not updated.
  ZString GetTypeNames() const;
  // Replaces TypeNames and retranslates Type from them, which may lose
  // bits (see the constructor).
  void SetTypeNames(ZString names);

  // The type bit of the factory registered under the library's word for
  // `id`; 0 for kinds without a factory (cutting plane, reference, grid,
  // poly cylinder) and for words the registry doesn't know.
  static ZDbEntityType GetTypeFromID(long long id);

  // The segment that owns this object; an invalid segment for key -1.
  ZDbEnSegment GetParent() const;
  // Moves the object into `to`; nothing if either key is -1. The key stays.
  void Move(ZDbEnSegment const& to) const;
  // Copies the object into `to` and returns the copy's key; -1, with no
  // graphics call, if either key is -1.
  long long Copy(ZDbEnSegment const& to) const;
  // Draws this object last among its siblings; nothing for key -1.
  void BringToFront() const;
  // Removes the object from the database and leaves the handle with key -1
  // and Type 0; TypeNames stay. Nothing for key -1. Other handles on the
  // object keep their stale key.
  void Delete();
  // Passes the library's update-control `list` for this object; nothing for
  // key -1.
  void ControlUpdate(ZString const& list) const;
  class ZDbAtColor Color() const;  // The handle of this entity's colour.

  // The bounding box, each pair of corner coordinates sorted into the box's
  // sides, and whether the library had one. The three forms differ on key
  // -1, on purpose: ComputeBoundingCuboid leaves `box` as it was, the two
  // others zero it. `ric` is the rendition context of an update callback,
  // passed through unchanged.
  bool ComputeBoundingCuboid(ZGeoBox& box) const;
  bool GetBoundingCuboid(ZGeoBox& box) const;
  bool GetBoundingCuboid_HIC(void const* ric, ZGeoBox& box) const;
  // The bounding sphere and whether the library had one. GetBoundingSphere
  // and its _HIC form give centre (0,0,0) and radius 0 for key -1.
  // ComputeBoundingSphere measures the whole segment that the key names,
  // through its path, and leaves `sphere` as it was for key -1.
  bool ComputeBoundingSphere(ZGeoSphere& sphere) const;
  bool GetBoundingSphere(ZGeoSphere& sphere) const;
  bool GetBoundingSphere_HIC(void const* ric, ZGeoSphere& sphere) const;

  // Ordered and compared by key alone: handles of different classes on one
  // key are equal.
  bool operator<(ZDbEntity const& other) const { return ID < other.ID; }
  bool operator==(ZDbEntity const& other) const { return ID == other.ID; }
  bool operator!=(ZDbEntity const& other) const { return ID != other.ID; }

 protected:
  // For derived classes, which pass their own bit and "". With empty
  // `typeNames` the names are generated from `type`, which yields "" for
  // the very first entity of the process (the tables are filled last).
  ZDbEntity(long long id, ZDbEntityType type, char const* typeNames);
  // Sets the key, and the names (retranslating Type) if `typeNames` isn't
  // empty.
  void SetID(long long id, char const* typeNames);

 private:
  // Fills the two process-wide name tables on first use.
  void InitMaps();
  ZDbEntityType GenerateTypesFromTypeNames(ZString const& names) const;
  ZString GenerateTypeNamesFromTypes(ZDbEntityType type) const;

  long long ID = -1;
  ZDbEntityType Type = kEntityUnknown;
  ZString TypeNames;
};
