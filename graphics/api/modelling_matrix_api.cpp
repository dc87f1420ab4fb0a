// The current segment's modelling matrix.
#include <algorithm>
#include <array>
#include <string>
#include <type_traits>

#include "api/arguments.h"
#include "api/call.h"
#include "attributes/modelling_matrix.h"
#include "geometry/geometry_type.h"
#include "hc/hc.h"
#include "strings/text.h"

using graphics::Done;
using graphics::Error;
using graphics::Matrix;
using graphics::ModellingMatrix;
using graphics::Result;
using graphics::Segment;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::Require;
using graphics::api::Run;

namespace {

// The local matrix, or why there is none to show.
Result<const Matrix*> LocalMatrix(Session& session) {
  const Segment* segment = session.SegmentToRead();
  const ModellingMatrix* local = segment ? segment->attributes().Find<ModellingMatrix>() : nullptr;
  if (local == nullptr) return Error(graphics::errc::kNotSet, "no modelling matrix is set here");
  return &local->matrix;
}

template <typename T>
void ShowMatrix(const char* routine, T* out) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    auto required = Require(out, "matrix");
    if (!required.ok()) return required.error();
    if (session.open_stack().top_is_dead()) return Done{};
    auto local = LocalMatrix(session);
    if (!local.ok()) return local.error();
    for (int i = 0; i < 16; ++i) out[i] = static_cast<T>(local.value()->elements()[i]);
    return Done{};
  });
}

// Option words the check accepts for segments; geometry type words are
// accepted too. Only the modelling matrix can be given in double precision.
constexpr std::string_view kSegmentPrecisionWords[] = {"bounding", "camera", "clip region", "modelling matrix"};

template <typename T>
void SetMatrix(const char* routine, const T* m) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    auto required = Require(m, "matrix");
    if (!required.ok()) return required.error();
    std::array<double, 16> elements;
    for (int i = 0; i < 16; ++i) elements[i] = m[i];
    const Matrix matrix(elements);
    if (!matrix.IsAffineTransform()) {
      return Error(graphics::errc::kOutOfRange,
                   "a modelling matrix needs finite elements, 0 in elements 3, 7 and 11, and a non-zero element 15");
    }
    Segment* segment = session.SegmentToChange();
    if (segment != nullptr) {
      segment->MutableAttributes().Set(ModellingMatrix{matrix, std::is_same_v<T, double>});
    }
    return Done{};
  });
}

}  // namespace

extern "C" void HC_Set_Modelling_Matrix(float const* m) { SetMatrix(__func__, m); }

extern "C" void HC_DSet_Modelling_Matrix(double const* m) { SetMatrix(__func__, m); }

extern "C" void HC_Show_Modelling_Matrix(float* m) { ShowMatrix(__func__, m); }

extern "C" void HC_DShow_Modelling_Matrix(double* m) { ShowMatrix(__func__, m); }

// Unsetting a matrix that is not set does nothing.
extern "C" void HC_UnSet_Modelling_Matrix(void) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    Segment* segment = session.SegmentToChange();
    if (segment != nullptr && segment->attributes().Has(ModellingMatrix::kKind)) {
      segment->MutableAttributes().Remove(ModellingMatrix::kKind);
    }
    return Done{};
  });
}

extern "C" bool HC_Check_Double_Precision(long long key, char const* what) {
  return Run(Access::kRead, __func__, false, [&](Session& session) -> Result<bool> {
    auto required = Require(what, "option");
    if (!required.ok()) return required.error();
    auto item = session.database().FindItem(key);
    if (!item.ok()) return item.error();
    const std::string word = graphics::NormalizeWord(what);
    const bool known = graphics::FindGeometryType(word).has_value() ||
                       std::find(std::begin(kSegmentPrecisionWords), std::end(kSegmentPrecisionWords), word) !=
                           std::end(kSegmentPrecisionWords);
    if (!known) return Error(graphics::errc::kUnknownOption, "unrecognised precision option '" + std::string(what) + "'");
    if (word != "modelling matrix" || item.value()->kind() != graphics::EntityKind::kSegment) return false;
    const auto* local = static_cast<const Segment*>(item.value())->attributes().Find<ModellingMatrix>();
    return local != nullptr && local->setInDoublePrecision;
  });
}
