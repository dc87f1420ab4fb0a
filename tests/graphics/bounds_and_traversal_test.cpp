// Internal structure later queries build on: cached segment bounds and the
// walk that gives net attribute values.
#include <gtest/gtest.h>

#include <array>
#include <memory>

#include "attributes/option_string.h"
#include "database/database.h"
#include "database/path_resolver.h"
#include "geometry/line.h"
#include "traversal/attribute_path.h"

namespace {

using graphics::Bounds;
using graphics::Creation;
using graphics::Database;
using graphics::Line;
using graphics::Matrix;
using graphics::ModellingMatrix;
using graphics::Point;
using graphics::Segment;

Segment& Make(Database& database, const char* path) {
  return *graphics::ResolvePath(database, nullptr, path, Creation::kCreateMissing).value();
}

Matrix Translation(double x, double y, double z) {
  return Matrix(std::array<double, 16>{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, x, y, z, 1});
}

Matrix Scale(double s) { return Matrix(std::array<double, 16>{s, 0, 0, 0, 0, s, 0, 0, 0, 0, s, 0, 0, 0, 0, 1}); }

TEST(SegmentBounds, CoverGeometryAndPlacedSubsegments) {
  Database database;
  Segment& top = Make(database, "/top");
  Segment& child = Make(database, "/top/child");
  EXPECT_TRUE(top.ContentBounds().empty());

  database.Insert(child, std::make_unique<Line>(Point{0, 0, 0}, Point{1, 2, 3}));
  EXPECT_EQ(top.ContentBounds().max(), (Point{1, 2, 3}));

  // A matrix on the child moves its contents in the owner's coordinates.
  child.MutableAttributes().Set(ModellingMatrix{Translation(10, 0, 0)});
  EXPECT_EQ(top.ContentBounds().min(), (Point{10, 0, 0}));
  EXPECT_EQ(top.ContentBounds().max(), (Point{11, 2, 3}));
  EXPECT_EQ(child.ContentBounds().max(), (Point{1, 2, 3}));

  // Changes deep down reach the cached bounds above.
  Segment& grandchild = Make(database, "/top/child/grandchild");
  graphics::Geometry& far = database.Insert(grandchild, std::make_unique<Line>(Point{-5, 0, 0}, Point{0, 0, 0}));
  EXPECT_EQ(top.ContentBounds().min(), (Point{5, 0, 0}));
  ASSERT_TRUE(database.Delete(far).ok());
  EXPECT_EQ(top.ContentBounds().min(), (Point{10, 0, 0}));
  ASSERT_TRUE(database.Delete(child).ok());
  EXPECT_TRUE(top.ContentBounds().empty());
}

TEST(AttributePath, ComposesMatricesFromTheLeafUpAndFindsTheLowestOption) {
  Database database;
  Segment& upper = Make(database, "/upper");
  Segment& lower = Make(database, "/upper/lower");
  upper.MutableAttributes().Set(ModellingMatrix{Translation(1, 0, 0)});
  lower.MutableAttributes().Set(ModellingMatrix{Scale(2)});

  // The lower matrix applies first: (1,1,1) scaled to (2,2,2), then moved.
  const auto path = graphics::AttributePath::Of(lower);
  EXPECT_EQ(path.NetModellingMatrix().Transform(Point{1, 1, 1}), (Point{3, 2, 2}));
  EXPECT_EQ(graphics::AttributePath::Of(database.root()).NetModellingMatrix(), Matrix());

  auto set = [](Segment& segment, const char* list) {
    segment.MutableAttributes().FindOrAdd<graphics::UserOptions>().Merge(graphics::ParseOptionList(list).value());
  };
  set(database.root(), "depth = root, only root = yes");
  set(lower, "depth = lower");
  EXPECT_EQ(*path.NetUserOption("depth"), "lower");
  EXPECT_EQ(*path.NetUserOption("only root"), "yes");
  EXPECT_EQ(graphics::AttributePath::Of(upper).NetUserOption("depth")->c_str(), std::string("root"));
  EXPECT_EQ(path.NetUserOption("absent"), nullptr);
}

}  // namespace
