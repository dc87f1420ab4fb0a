#include "math/curve_tessellation.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "geometry/vector_ops.h"

namespace graphics {

namespace {

constexpr double kFullTurn = 2 * std::numbers::pi;
// The coarsest outline of a full turn.
constexpr int kPiecesPerTurn = 8;
// How often a piece of a B-spline may be halved to meet the distance.
constexpr int kMaxHalvings = 16;

Vec3 Unit(const Vec3& v) { return v * (1 / Length(v)); }

int ArcPieces(double sweep, double radius, std::optional<double> max_deviation) {
  double pieces = std::ceil(kPiecesPerTurn * sweep / kFullTurn);
  if (max_deviation && *max_deviation < radius) {
    // A chord over the angle `step` stays within radius * (1 - cos(step / 2))
    // of the circle; an ellipse stays closer than its larger circle.
    const double step = 2 * std::acos(1 - *max_deviation / radius);
    pieces = std::max(pieces, std::ceil(sweep / step));
  }
  return static_cast<int>(std::clamp(pieces, 1.0, static_cast<double>(kMaxCurvePieces)));
}

double DistanceToSegment(const Vec3& p, const Vec3& a, const Vec3& b) {
  const Vec3 ab = b - a;
  const double length2 = Dot(ab, ab);
  const double t = length2 > 0 ? std::clamp(Dot(p - a, ab) / length2, 0.0, 1.0) : 0.0;
  return Length(p - (a + ab * t));
}

// Evaluates a rational B-spline by de Boor's algorithm on homogeneous points.
class NurbsEvaluator {
 public:
  explicit NurbsEvaluator(const NurbsCurveData& curve) : degree_(curve.degree) {
    const size_t count = curve.control_points.size();
    if (curve.knots.empty()) {
      // Clamped uniform: degree + 1 zeros and ones, even steps between.
      const size_t inner = count - static_cast<size_t>(degree_);
      knots_.assign(static_cast<size_t>(degree_) + 1, 0.0);
      for (size_t i = 1; i < inner; ++i) knots_.push_back(static_cast<double>(i) / static_cast<double>(inner));
      knots_.insert(knots_.end(), static_cast<size_t>(degree_) + 1, 1.0);
    } else {
      knots_.assign(curve.knots.begin(), curve.knots.end());
    }
    points_.reserve(count);
    for (size_t i = 0; i < count; ++i) {
      const double w = curve.weights.empty() ? 1.0 : curve.weights[i];
      const Vec3 p = ToVec(curve.control_points[i]);
      points_.push_back({p.x * w, p.y * w, p.z * w, w});
    }
  }

  // The valid parameter range.
  double first() const { return knots_[static_cast<size_t>(degree_)]; }
  double last() const { return knots_[points_.size()]; }
  const std::vector<double>& knots() const { return knots_; }

  Vec3 At(double u) const {
    // The span holding u: the last knot interval [k_s, k_s+1) with k_s <= u,
    // kept inside the valid range so the range's end uses the last span.
    const size_t lowest = static_cast<size_t>(degree_);
    const size_t highest = points_.size() - 1;
    size_t span = static_cast<size_t>(std::upper_bound(knots_.begin(), knots_.end(), u) - knots_.begin());
    span = std::clamp(span == 0 ? lowest : span - 1, lowest, highest);
    while (span > lowest && knots_[span] == knots_[span + 1]) --span;
    std::vector<Homogeneous> d(points_.begin() + static_cast<long>(span - lowest),
                               points_.begin() + static_cast<long>(span + 1));
    for (int r = 1; r <= degree_; ++r) {
      for (int j = degree_; j >= r; --j) {
        const size_t i = span - lowest + static_cast<size_t>(j);
        const double left = knots_[i], right = knots_[i + lowest + 1 - static_cast<size_t>(r)];
        const double alpha = right > left ? (u - left) / (right - left) : 0.0;
        for (int c = 0; c < 4; ++c) {
          d[j].c[c] = (1 - alpha) * d[j - 1].c[c] + alpha * d[j].c[c];
        }
      }
    }
    const Homogeneous& h = d[static_cast<size_t>(degree_)];
    // A zero weight sum has no point; the unweighted position stands in.
    const double w = h.c[3] != 0 ? h.c[3] : 1.0;
    return Vec3{h.c[0] / w, h.c[1] / w, h.c[2] / w};
  }

 private:
  struct Homogeneous {
    double c[4];
  };
  int degree_;
  std::vector<double> knots_;
  std::vector<Homogeneous> points_;
};

}  // namespace

EllipseArc ArcThrough(const Point& a, const Point& b, const Point& c) {
  const Vec3 pa = ToVec(a), ab = ToVec(b) - pa, ac = ToVec(c) - pa;
  const Vec3 normal = Cross(ab, ac);
  // Circumcentre of the triangle, relative to a.
  const Vec3 to_center = (Cross(normal, ab) * Dot(ac, ac) + Cross(ac, normal) * Dot(ab, ab)) *
                         (1 / (2 * Dot(normal, normal)));
  const Vec3 center = pa + to_center;
  const double radius = Length(to_center);
  // u towards a, v a quarter turn on, towards b.
  const Vec3 u = Unit(pa - center);
  const Vec3 v = Cross(Unit(normal), u);
  const Vec3 to_c = ToVec(c) - center;
  double end = std::atan2(Dot(to_c, v), Dot(to_c, u));
  if (end <= 0) end += kFullTurn;
  return EllipseArc{ToPoint(center), ToPoint(u * radius), ToPoint(v * radius), 0, end};
}

std::vector<Point> TessellateArc(const EllipseArc& arc, std::optional<double> max_deviation) {
  const Vec3 center = ToVec(arc.center), major = ToVec(arc.major), minor = ToVec(arc.minor);
  const double sweep = arc.end - arc.start;
  const int pieces = ArcPieces(sweep, std::max(Length(major), Length(minor)), max_deviation);
  std::vector<Point> points;
  points.reserve(static_cast<size_t>(pieces) + 1);
  for (int i = 0; i <= pieces; ++i) {
    const double t = arc.start + sweep * i / pieces;
    points.push_back(ToPoint(center + major * std::cos(t) + minor * std::sin(t)));
  }
  if (sweep >= kFullTurn) points.back() = points.front();
  return points;
}

std::vector<Point> TessellateNurbs(const NurbsCurveData& curve, std::optional<double> max_deviation) {
  const NurbsEvaluator evaluator(curve);
  const double range = evaluator.last() - evaluator.first();
  const double u0 = evaluator.first() + curve.start * range;
  const double u1 = evaluator.first() + curve.end * range;
  std::vector<Point> points{ToPoint(evaluator.At(u0))};
  if (!(u1 > u0)) return points;

  // Knot values inside the range cut it into polynomial pieces.
  std::vector<double> breaks{u0};
  for (double k : evaluator.knots()) {
    if (k > breaks.back() && k < u1) breaks.push_back(k);
  }
  breaks.push_back(u1);

  int budget = kMaxCurvePieces;
  // Adds the points after `a` up to `b`, halving while the middle of the
  // piece strays further than the largest distance from its chord.
  const auto refine = [&](auto&& self, double ta, const Vec3& pa, double tb, const Vec3& pb, int halvings) -> void {
    const double tm = (ta + tb) / 2;
    const Vec3 pm = evaluator.At(tm);
    if (max_deviation && halvings < kMaxHalvings && budget > 0 && DistanceToSegment(pm, pa, pb) > *max_deviation) {
      --budget;
      self(self, ta, pa, tm, pm, halvings + 1);
      self(self, tm, pm, tb, pb, halvings + 1);
      return;
    }
    points.push_back(ToPoint(pb));
  };
  Vec3 previous = evaluator.At(u0);
  for (size_t i = 0; i + 1 < breaks.size(); ++i) {
    for (int step = 1; step <= curve.degree; ++step) {
      const double ta = breaks[i] + (breaks[i + 1] - breaks[i]) * (step - 1) / curve.degree;
      const double tb = breaks[i] + (breaks[i + 1] - breaks[i]) * step / curve.degree;
      const Vec3 next = evaluator.At(tb);
      refine(refine, ta, previous, tb, next, 0);
      previous = next;
    }
  }
  return points;
}

}  // namespace graphics
