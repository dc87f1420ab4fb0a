// The entity handle: its type bookkeeping and the operations common to all
// entities, against the engine.
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <typeinfo>

#include "entity_test_fixture.h"
#include "hc/hc.h"
#include "sceneward/scene/entities/zdb_entity.h"
#include "sceneward/scene/entities/zdb_entity_factory.h"
#include "support/engine_error_log.h"
#include "support/recording_host_test.h"

namespace {

// An entity typed by bits, as derived classes build theirs.
class TypedEntity : public ZDbEntity {
 public:
  explicit TypedEntity(int type, long long id = -1)
      : ZDbEntity(id, static_cast<ZDbEntityType>(type), "") {}
};

using EntityFirstUseTest = RecordingHostTest;

// Run in a process of its own, so that nothing has built an entity before:
// the name tables are filled at the end of the first entity's construction,
// after it has translated its names.
TEST_F(EntityFirstUseTest, TheFirstEntityOfTheProcessMeetsEmptyTables) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  // A derived handle gets no names of its own; Delete, which clears the
  // type and keeps the names, shows it.
  EXPECT_EXIT(
      {
        ::HC_Open_Segment("/entity first use");
        const long long line1 = ::HC_Insert_Line(0, 0, 0, 1, 0, 0);
        const long long line2 = ::HC_Insert_Line(0, 0, 0, 0, 1, 0);
        ::HC_Close_Segment();
        TypedEntity first(kEntityCircle, line1);
        TypedEntity second(kEntityCircle, line2);
        first.Delete();
        second.Delete();
        ::HC_Delete_Segment("/entity first use");
        std::exit(first.GetTypeNames().IsEmpty() && second.GetTypeNames() == "circle" ? 0 : 1);
      },
      ::testing::ExitedWithCode(0), "");
  // A handle built from names finds none of them.
  EXPECT_EXIT(
      {
        ZDbEntity byName(7, "segment,line");
        std::exit(byName.GetType() == kEntityUnknown ? 0 : 1);
      },
      ::testing::ExitedWithCode(0), "");
}

TEST(EntityTypeTables, DefaultEntityNamesNothing) {
  ZDbEntity entity;
  EXPECT_EQ(entity.GetID(), -1);
  EXPECT_EQ(entity.GetType(), kEntityUnknown);
  EXPECT_FALSE(entity.IsValid());
  EXPECT_TRUE(entity.GetTypeNames().IsEmpty());
}

TEST(EntityTypeTables, NamesFromBitsFollowAscendingBitOrder) {
  EXPECT_EQ(TypedEntity(0x30).GetTypeNames(), "marker,circle");
  EXPECT_EQ(TypedEntity(kEntityCircle).GetTypeNames(), "circle");
  EXPECT_EQ(TypedEntity(kEntityPolyCylinder).GetTypeNames(), "poly cylinder");
  EXPECT_EQ(TypedEntity(kEntityGrid | kEntitySegment | kEntityCuttingPlane).GetTypeNames(),
            "segment,cutting plane,grid");
  EXPECT_TRUE(TypedEntity(0).GetTypeNames().IsEmpty());
}

// Names are translated by the address of their text, so a name may go
// unrecognised; it never yields a bit it doesn't name.
TEST(EntityTypeTables, TypesFromNamesNeverGainForeignBits) {
  ZDbEntity named(5, "line,circle,no such kind");
  EXPECT_EQ(named.GetType() & ~(kEntityLine | kEntityCircle), 0);
  EXPECT_EQ(named.GetTypeNames(), "line,circle,no such kind");
  named.SetTypeNames("segment");
  EXPECT_EQ(named.GetType() & ~kEntitySegment, 0);
  EXPECT_EQ(named.GetTypeNames(), "segment");
}

TEST(EntityTypeTables, ExactSegmentTestAndKeyOnlyComparison) {
  EXPECT_TRUE(TypedEntity(kEntitySegment).IsSegment());
  EXPECT_FALSE(TypedEntity(kEntitySegment | kEntityLine).IsSegment());
  EXPECT_EQ(ZDbEnSegment(12345), TypedEntity(kEntityLine, 12345));
  EXPECT_NE(ZDbEnSegment(12345), ZDbEnSegment(12346));
  EXPECT_LT(ZDbEntity(-1), ZDbEntity(0));
}

TEST(EntityFactoryRegistry, SearchListsAreAlphabeticalAndOnlyRegistered) {
  EXPECT_EQ(ZDbEntityFactoryMap::SearchTypesFromMask(-1), "geometry,segment");
  EXPECT_EQ(ZDbEntityFactoryMap::SearchTypesFromMask(-2), "geometry");
  EXPECT_EQ(ZDbEntityFactoryMap::SearchTypesFromMask(kEntitySegment), "segment");
  EXPECT_EQ(ZDbEntityFactoryMap::SearchTypesFromMask(0x30), "circle,marker");
  EXPECT_TRUE(ZDbEntityFactoryMap::SearchTypesFromMask(kEntityCuttingPlane).IsEmpty());
  EXPECT_TRUE(ZDbEntityFactoryMap::SearchTypesFromMask(0).IsEmpty());
  EXPECT_EQ(ZDbEntityFactoryMap::SearchTypesFromMask(0x7fffffff),
            "circle,circular arc,circular chord,circular wedge,distant light,ellipse,"
            "elliptical arc,image,include,line,local light,marker,mesh,nurbs curve,polygon,"
            "polyline,segment,shell,spot light,style,text");
}

using EntityCoreTest = EntityTest;

TEST_F(EntityCoreTest, TypeOfAKeyComesFromTheFactoryOfTheLibrarysWord) {
  const long long line = InsertLine(scene_);
  ::HC_Open_Segment_By_Key(scene_.GetID());
  const long long plane = ::HC_Insert_Cutting_Plane(0, 0, 1, 0);
  ::HC_Close_Segment();

  EXPECT_EQ(ZDbEntity::GetTypeFromID(scene_.GetID()), kEntitySegment);
  EXPECT_EQ(ZDbEntity::GetTypeFromID(line), kEntityLine);
  EXPECT_EQ(ZDbEntity::GetTypeFromID(plane), kEntityUnknown);
  EXPECT_EQ(ZDbEntity(line).GetTypeName(), "line");

  std::unique_ptr<ZDbEntity> segment(ZDbEntityFactoryMap::CreateEntityFromID(scene_.GetID()));
  EXPECT_NE(dynamic_cast<ZDbEnSegment*>(segment.get()), nullptr);
  EXPECT_TRUE(segment->IsSegment());
  std::unique_ptr<ZDbEntity> cut(ZDbEntityFactoryMap::CreateEntityFromID(plane));
  EXPECT_EQ(typeid(*cut), typeid(ZDbEntity));
  EXPECT_EQ(cut->GetID(), plane);
  EXPECT_FALSE(cut->IsSegment());
  EXPECT_TRUE(cut->GetTypeNames().IsEmpty());
}

TEST_F(EntityCoreTest, MoveCopyAndParent) {
  ZDbEnSegment target = MakeSegment("target");
  ZDbEntity line(InsertLine(scene_));
  EXPECT_EQ(line.GetParent(), scene_);

  const long long copy = line.Copy(target);
  ASSERT_NE(copy, -1);
  EXPECT_NE(copy, line.GetID());
  EXPECT_EQ(ZDbEntity(copy).GetParent(), target);

  const long long key = line.GetID();
  line.Move(target);
  EXPECT_EQ(line.GetID(), key);
  EXPECT_EQ(line.GetParent(), target);
  EXPECT_EQ(scene_.GetParent().GetFullPath(), "/");
}

TEST_F(EntityCoreTest, DeleteInvalidatesTheHandleButKeepsItsNames) {
  ZDbEntity line(InsertLine(scene_), "line");
  const long long key = line.GetID();
  line.Delete();
  EXPECT_EQ(line.GetID(), -1);
  EXPECT_EQ(line.GetType(), kEntityUnknown);
  EXPECT_EQ(line.GetTypeNames(), "line");
  ZString status;
  ::HC_Show_Key_Status(key, status.GetBuffer8(64));
  EXPECT_EQ(status, "invalid");
}

TEST_F(EntityCoreTest, InvalidHandleMakesNoGraphicsCall) {
  ZDbEntity invalid;
  ZGeoBox box(1, 2, 3, 4, 5, 6);
  ZGeoSphere sphere(ZGeoPoint(1, 2, 3), 4);
  recorder_.ClearCalls();

  EXPECT_FALSE(invalid.GetParent().IsValid());
  invalid.Move(scene_);
  scene_.Move(ZDbEnSegment());
  EXPECT_EQ(invalid.Copy(scene_), -1);
  EXPECT_EQ(scene_.Copy(ZDbEnSegment()), -1);
  invalid.BringToFront();
  invalid.ControlUpdate("compile only");
  invalid.Delete();
  EXPECT_FALSE(invalid.ComputeBoundingSphere(sphere));
  EXPECT_FALSE(invalid.ComputeBoundingCuboid(box));
  EXPECT_TRUE(GraphicsCalls().empty());

  // Computing leaves the results alone; showing zeroes them.
  EXPECT_EQ(box.GetLeft() + box.GetFront() + sphere.GetRadius(), 1 + 6 + 4);
  EXPECT_FALSE(invalid.GetBoundingCuboid(box));
  EXPECT_EQ(box.GetLeft() + box.GetFront(), 0);
  box = ZGeoBox(1, 2, 3, 4, 5, 6);
  EXPECT_FALSE(invalid.GetBoundingCuboid_HIC(nullptr, box));
  EXPECT_EQ(box.GetRight(), 0);
  EXPECT_FALSE(invalid.GetBoundingSphere(sphere));
  EXPECT_EQ(sphere.GetRadius(), 0);
  sphere = ZGeoSphere(ZGeoPoint(1, 2, 3), 4);
  EXPECT_FALSE(invalid.GetBoundingSphere_HIC(nullptr, sphere));
  EXPECT_EQ(sphere.GetCenter().x + sphere.GetRadius(), 0);
  EXPECT_TRUE(GraphicsCalls().empty());
}

TEST_F(EntityCoreTest, MoveAndCopyBracketTheTarget) {
  ZDbEnSegment target = MakeSegment("target");
  ZDbEntity line(InsertLine(scene_));
  recorder_.ClearCalls();
  line.Copy(target);
  line.Move(target);
  EXPECT_EQ(GraphicsCalls(),
            (Calls{"HC_Open_Segment_By_Key", "HC_Copy_Geometry", "HC_Close_Segment",
                   "HC_Open_Segment_By_Key", "HC_Move_By_Key", "HC_Close_Segment"}));
}

TEST_F(EntityCoreTest, BoundingCuboidSortsTheCorners) {
  ::HC_Open_Segment_By_Key(scene_.GetID());
  ZDbEntity line(::HC_Insert_Line(1, 5, 0, -1, 2, 3));
  ::HC_Close_Segment();

  ZGeoBox box;
  ASSERT_TRUE(line.ComputeBoundingCuboid(box));
  EXPECT_FLOAT_EQ(box.GetLeft(), -1);
  EXPECT_FLOAT_EQ(box.GetRight(), 1);
  EXPECT_FLOAT_EQ(box.GetTop(), 2);
  EXPECT_FLOAT_EQ(box.GetBottom(), 5);
  EXPECT_FLOAT_EQ(box.GetBack(), 0);
  EXPECT_FLOAT_EQ(box.GetFront(), 3);

  ZGeoBox shown;
  ASSERT_TRUE(scene_.GetBoundingCuboid(shown));
  EXPECT_LE(shown.GetLeft(), -1);
  EXPECT_GE(shown.GetBottom(), 5);
  ZGeoSphere sphere;
  ASSERT_TRUE(scene_.GetBoundingSphere(sphere));
  EXPECT_GT(sphere.GetRadius(), 0);
}

// Measured by the path of the segment that the key names.
TEST_F(EntityCoreTest, ComputedSphereMeasuresTheWholeSegment) {
  ::HC_Open_Segment_By_Key(scene_.GetID());
  ::HC_Insert_Line(-2, 0, 0, 2, 0, 0);
  ::HC_Close_Segment();
  ZGeoSphere sphere;
  recorder_.ClearCalls();
  ASSERT_TRUE(scene_.ComputeBoundingSphere(sphere));
  EXPECT_EQ(GraphicsCalls(), (Calls{"HC_Show_Segment", "HC_Compute_Circumsphere"}));
  EXPECT_NEAR(sphere.GetCenter().x, 0, 1e-5);
  EXPECT_NEAR(sphere.GetRadius(), 2, 1e-5);
}

TEST_F(EntityCoreTest, ControlUpdateAndBringToFrontReachTheLibrary) {
  EngineErrorLog log;
  ZDbEntity line(InsertLine(scene_));
  InsertLine(scene_, 1);
  line.BringToFront();
  line.ControlUpdate("compile only");
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Control_Update_By_Key");
  EXPECT_TRUE(log.Reports().empty());
}

}  // namespace
