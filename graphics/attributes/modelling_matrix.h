#pragma once
// A segment's local modelling matrix. Kept in double precision so products
// along deep paths lose nothing; the flag remembers whether it was given in
// double precision, which callers may ask before choosing how to read it.
#include "attributes/attribute_kind.h"
#include "math/matrix.h"

namespace graphics {

struct ModellingMatrix {
  static constexpr AttributeKind kKind = AttributeKind::kModellingMatrix;

  Matrix matrix;
  bool setInDoublePrecision = false;
};

}  // namespace graphics
