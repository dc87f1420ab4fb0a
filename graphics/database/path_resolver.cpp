#include "database/path_resolver.h"

#include <string>
#include <vector>

#include "database/segment_path.h"

namespace graphics {

namespace {

// A segment the walk has reached: one that exists, or one it will create.
struct Position {
  Segment* existing = nullptr;
  int planned = -1;  // index into the plan when not existing
};

struct PlannedSegment {
  Position owner;
  std::string name;
};

// Walks the components without changing anything, recording the segments to
// create; only a complete walk is carried out.
class Walk {
 public:
  Walk(Database& database, std::string_view path) : database_(database), path_(path) {}

  Status Step(Position& at, const PathComponent& component) {
    switch (component.kind) {
      case PathComponent::Kind::kSelf:
        return Done{};
      case PathComponent::Kind::kOwner:
        return StepToOwner(at);
      case PathComponent::Kind::kKey:
        return StepToKey(at, component.key);
      case PathComponent::Kind::kName:
        StepToChild(at, component.name);
        return Done{};
    }
    return Done{};
  }

  bool creates() const { return !plan_.empty(); }

  Segment* Carry(const Position& target) {
    std::vector<Segment*> made;
    for (PlannedSegment& planned : plan_) {
      Segment* owner = planned.owner.existing ? planned.owner.existing : made[planned.owner.planned];
      made.push_back(&database_.CreateChild(*owner, std::move(planned.name)));
    }
    return target.existing ? target.existing : made[target.planned];
  }

 private:
  Status StepToOwner(Position& at) {
    if (at.existing == nullptr) {
      at = plan_[at.planned].owner;
    } else if (at.existing->owner() == nullptr) {
      return Error(errc::kNoSuchSegment, "'" + path_ + "' goes above the root");
    } else {
      at.existing = at.existing->owner();
    }
    return Done{};
  }

  Status StepToKey(Position& at, long long key) {
    Entity* item = database_.Find(key);
    if (at.existing == nullptr || item == nullptr || item->kind() != EntityKind::kSegment ||
        item->owner() != at.existing) {
      return Error(errc::kNoSuchSegment, "'" + path_ + "': no subsegment " + KeyReference(key));
    }
    at.existing = static_cast<Segment*>(item);
    return Done{};
  }

  void StepToChild(Position& at, const std::string& name) {
    if (at.existing != nullptr) {
      if (Segment* child = at.existing->FindChild(name)) {
        at.existing = child;
        return;
      }
    } else {
      for (size_t i = 0; i < plan_.size(); ++i) {
        if (plan_[i].owner.planned == at.planned && plan_[i].name == name) {
          at.planned = static_cast<int>(i);
          return;
        }
      }
    }
    plan_.push_back(PlannedSegment{at, name});
    at = Position{nullptr, static_cast<int>(plan_.size() - 1)};
  }

  Database& database_;
  std::string path_;
  std::vector<PlannedSegment> plan_;
};

}  // namespace

Result<Segment*> ResolvePath(Database& database, Segment* base, std::string_view path, Creation creation) {
  auto expanded = database.aliases().Expand(path);
  if (!expanded.ok()) return expanded.error();
  auto parsed = ParseSegmentPath(expanded.value());
  if (!parsed.ok()) return parsed.error();
  const SegmentPath& segment_path = parsed.value();
  if (!segment_path.absolute && base == nullptr) {
    return Error(errc::kRelativeWithNothingOpen,
                 "relative name '" + std::string(path) + "' with no segment open");
  }
  Position at{segment_path.absolute ? &database.root() : base, -1};
  Walk walk(database, path);
  for (const PathComponent& component : segment_path.components) {
    auto stepped = walk.Step(at, component);
    if (!stepped.ok()) return stepped.error();
  }
  if (walk.creates() && creation == Creation::kMustExist) {
    return Error(errc::kNoSuchSegment, "no segment '" + std::string(path) + "'");
  }
  return walk.Carry(at);
}

}  // namespace graphics
