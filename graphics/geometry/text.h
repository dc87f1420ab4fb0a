#pragma once
#include "geometry/encoded_text.h"
#include "geometry/geometry.h"
#include "math/point.h"

namespace graphics {

class Text final : public CopyableGeometry<Text> {
 public:
  Text(const Point& position, EncodedText text)
      : CopyableGeometry(GeometryType::kText), position_(position), text_(std::move(text)) {}

  const Point& position() const { return position_; }
  const EncodedText& text() const { return text_; }
  void MoveTo(const Point& position);

  // The reference point only: the extent of the characters depends on the
  // font and the window, which the text measurement work computes.
  Bounds ComputeBounds() const override;

 private:
  Point position_;
  EncodedText text_;
};

}  // namespace graphics
