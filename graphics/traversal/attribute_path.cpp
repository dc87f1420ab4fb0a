#include "traversal/attribute_path.h"

namespace graphics {

AttributePath AttributePath::Of(const Segment& leaf) {
  AttributePath path;
  for (const Segment* s = &leaf; s != nullptr; s = s->owner()) path.chain_.push_back(s);
  return path;
}

Matrix AttributePath::NetModellingMatrix() const {
  Matrix net;
  Walk([&](const Segment& segment) {
    if (const auto* local = segment.attributes().Find<ModellingMatrix>()) net = local->matrix.Then(net);
  });
  return net;
}

const std::string* AttributePath::NetUserOption(std::string_view name) const {
  const std::string* value = nullptr;
  Walk([&](const Segment& segment) {
    const auto* options = segment.attributes().Find<UserOptions>();
    if (const std::string* local = options ? options->Find(name) : nullptr) value = local;
  });
  return value;
}

}  // namespace graphics
