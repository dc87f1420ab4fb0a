// The current segment's modelling and texture matrices: set, append (and
// the rotate, translate and scale calls that append), show, unset and net.
// Both matrices take the same calls, so each is written once over the kind.
#include <algorithm>
#include <array>
#include <string>
#include <type_traits>

#include "api/arguments.h"
#include "api/call.h"
#include "api/net_path.h"
#include "attributes/modelling_matrix.h"
#include "attributes/value_attributes.h"
#include "geometry/geometry_type.h"
#include "hc/hc.h"
#include "math/transforms.h"
#include "strings/text.h"

using graphics::AttributeKind;
using graphics::Done;
using graphics::Error;
using graphics::Matrix;
using graphics::ModellingMatrix;
using graphics::Result;
using graphics::Segment;
using graphics::Session;
using graphics::Status;
using graphics::TextureMatrix;
using graphics::api::Access;
using graphics::api::Require;
using graphics::api::Run;

namespace {

constexpr AttributeKind kModelling = AttributeKind::kModellingMatrix;
constexpr AttributeKind kTexture = AttributeKind::kTextureMatrix;

const Matrix* LocalMatrix(const Segment& segment, AttributeKind kind) {
  if (kind == kModelling) {
    const auto* local = segment.attributes().Find<ModellingMatrix>();
    return local ? &local->matrix : nullptr;
  }
  const auto* local = segment.attributes().Find<TextureMatrix>();
  return local ? &local->value : nullptr;
}

void StoreMatrix(Segment& segment, AttributeKind kind, const Matrix& matrix, bool double_precision) {
  if (kind == kModelling) {
    segment.MutableAttributes().Set(ModellingMatrix{matrix, double_precision});
  } else {
    segment.MutableAttributes().Set(TextureMatrix{matrix});
  }
}

Error NotAffine(AttributeKind kind) {
  return Error(graphics::errc::kOutOfRange, "a " + std::string(graphics::AttributeName(kind)) +
                                                " needs finite elements, 0 in elements 3, 7 and 11, and a non-zero "
                                                "element 15");
}

template <typename T>
void ShowMatrix(const char* routine, AttributeKind kind, T* out) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    auto required = Require(out, "matrix");
    if (!required.ok()) return required.error();
    if (session.open_stack().top_is_dead()) return Done{};
    const Segment* segment = session.SegmentToRead();
    const Matrix* local = segment ? LocalMatrix(*segment, kind) : nullptr;
    if (local == nullptr) {
      return Error(graphics::errc::kNotSet, "no " + std::string(graphics::AttributeName(kind)) + " is set here");
    }
    for (int i = 0; i < 16; ++i) out[i] = static_cast<T>(local->elements()[i]);
    return Done{};
  });
}

template <typename T>
void SetMatrix(const char* routine, AttributeKind kind, const T* m) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    auto required = Require(m, "matrix");
    if (!required.ok()) return required.error();
    std::array<double, 16> elements;
    std::copy(m, m + 16, elements.begin());
    const Matrix matrix(elements);
    if (!matrix.IsAffineTransform()) return NotAffine(kind);
    if (Segment* segment = session.SegmentToChange()) {
      StoreMatrix(*segment, kind, matrix, std::is_same_v<T, double>);
    }
    return Done{};
  });
}

// "The scene as it was, then this change": the local matrix followed by
// `make()`'s, or that matrix alone when none is set.
template <typename Make>
void AppendMatrix(const char* routine, AttributeKind kind, Make&& make) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    Result<Matrix> appended = make();
    if (!appended.ok()) return appended.error();
    if (!appended.value().IsAffineTransform()) return NotAffine(kind);
    Segment* segment = session.SegmentToChange();
    if (segment == nullptr) return Done{};
    const Matrix* local = LocalMatrix(*segment, kind);
    const bool double_precision =
        kind == kModelling && local != nullptr && segment->attributes().Find<ModellingMatrix>()->setInDoublePrecision;
    StoreMatrix(*segment, kind, local ? local->Then(appended.value()) : appended.value(), double_precision);
    return Done{};
  });
}

Result<Matrix> GivenMatrix(const float* m) {
  auto required = Require(m, "matrix");
  if (!required.ok()) return required.error();
  std::array<double, 16> elements;
  std::copy(m, m + 16, elements.begin());
  return Matrix(elements);
}

Result<Matrix> Offaxis(double x, double y, double z, double theta) {
  auto rotation = graphics::OffaxisRotationMatrix(x, y, z, theta);
  if (!rotation) return Error(graphics::errc::kOutOfRange, "a rotation axis must be finite and not zero");
  return *rotation;
}

void UnSetMatrix(const char* routine, AttributeKind kind) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    Segment* segment = session.SegmentToChange();
    if (segment != nullptr && segment->attributes().Has(kind)) segment->MutableAttributes().Remove(kind);
    return Done{};
  });
}

// The product along the path, the lowest matrix first; identity and false
// when no segment on it sets one.
bool ShowNetMatrix(const char* routine, AttributeKind kind, int count, const long long* keys, float* out) {
  return Run(Access::kRead, routine, false, [&](Session& session) -> Result<bool> {
    auto path = graphics::api::NetPath(session, count, keys);
    if (!path.ok()) return path.error();
    const bool set = path.value().HasMatrix(kind);
    const Matrix net = kind == kModelling ? path.value().NetModellingMatrix() : path.value().NetTextureMatrix();
    if (out != nullptr) {
      for (int i = 0; i < 16; ++i) out[i] = static_cast<float>(net.elements()[i]);
    }
    return set;
  });
}

// Option words the check accepts for segments; geometry type words are
// accepted too. Only the modelling matrix can be given in double precision.
constexpr std::string_view kSegmentPrecisionWords[] = {"bounding", "camera", "clip region", "modelling matrix"};

}  // namespace

extern "C" void HC_Set_Modelling_Matrix(float const* m) { SetMatrix(__func__, kModelling, m); }
extern "C" void HC_DSet_Modelling_Matrix(double const* m) { SetMatrix(__func__, kModelling, m); }
extern "C" void HC_Show_Modelling_Matrix(float* m) { ShowMatrix(__func__, kModelling, m); }
extern "C" void HC_DShow_Modelling_Matrix(double* m) { ShowMatrix(__func__, kModelling, m); }
// Unsetting a matrix that is not set does nothing.
extern "C" void HC_UnSet_Modelling_Matrix(void) { UnSetMatrix(__func__, kModelling); }
extern "C" void HC_Append_Modelling_Matrix(float const* m) {
  AppendMatrix(__func__, kModelling, [&] { return GivenMatrix(m); });
}
extern "C" void HC_Rotate_Object(double theta, double phi, double psi) {
  AppendMatrix(__func__, kModelling, [&]() -> Result<Matrix> { return graphics::RotationMatrix(theta, phi, psi); });
}
extern "C" void HC_Rotate_Object_Offaxis(double x, double y, double z, double theta) {
  AppendMatrix(__func__, kModelling, [&] { return Offaxis(x, y, z, theta); });
}
extern "C" void HC_Translate_Object(double x, double y, double z) {
  AppendMatrix(__func__, kModelling, [&]() -> Result<Matrix> { return graphics::TranslationMatrix(x, y, z); });
}
extern "C" void HC_Scale_Object(double x, double y, double z) {
  AppendMatrix(__func__, kModelling, [&]() -> Result<Matrix> { return graphics::ScaleMatrix(x, y, z); });
}
extern "C" bool HC_PShow_Net_Modelling_Matrix(int count, long long const* keys, float* m) {
  return ShowNetMatrix(__func__, kModelling, count, keys, m);
}

extern "C" void HC_Set_Texture_Matrix(float const* m) { SetMatrix(__func__, kTexture, m); }
extern "C" void HC_Show_Texture_Matrix(float* m) { ShowMatrix(__func__, kTexture, m); }
extern "C" void HC_UnSet_Texture_Matrix(void) { UnSetMatrix(__func__, kTexture); }
extern "C" void HC_Append_Texture_Matrix(float const* m) {
  AppendMatrix(__func__, kTexture, [&] { return GivenMatrix(m); });
}
extern "C" void HC_Rotate_Texture(double theta, double phi, double psi) {
  AppendMatrix(__func__, kTexture, [&]() -> Result<Matrix> { return graphics::RotationMatrix(theta, phi, psi); });
}
extern "C" void HC_Rotate_Texture_Offaxis(double x, double y, double z, double theta) {
  AppendMatrix(__func__, kTexture, [&] { return Offaxis(x, y, z, theta); });
}
extern "C" void HC_Translate_Texture(double u, double v, double w) {
  AppendMatrix(__func__, kTexture, [&]() -> Result<Matrix> { return graphics::TranslationMatrix(u, v, w); });
}
extern "C" void HC_Scale_Texture(double u, double v, double w) {
  AppendMatrix(__func__, kTexture, [&]() -> Result<Matrix> { return graphics::ScaleMatrix(u, v, w); });
}
extern "C" bool HC_PShow_Net_Texture_Matrix(int count, long long const* keys, float* m) {
  return ShowNetMatrix(__func__, kTexture, count, keys, m);
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
