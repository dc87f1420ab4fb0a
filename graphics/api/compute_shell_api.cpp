// Shell data with redundant points and degenerate faces taken out, for a
// caller to insert instead of the original.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>
#include <string>
#include <vector>

#include "api/arguments.h"
#include "api/call.h"
#include "api/compute_inputs.h"
#include "attributes/option_family.h"
#include "attributes/option_string.h"
#include "hc/hc.h"
#include "math/shell_optimization.h"
#include "strings/text.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine

namespace {

Error BadValue(const OptionItem& item) {
  return Error(errc::kOutOfRange, "bad value for shell option '" + item.name + "': '" + item.value.value_or("") + "'");
}

// "tolerance = x", in object units ("oru", the default) or as a percentage
// of the shortest edge ("%" or "fru").
Status ParseTolerance(const OptionItem& item, ShellOptimizationOptions& options) {
  if (!item.value) return BadValue(item);
  std::string_view text = TrimBlanks(*item.value);
  std::string unit;
  if (text.ends_with('%')) {
    unit = "%";
    text.remove_suffix(1);
  } else if (const size_t blank = text.find_first_of(" \t"); blank != std::string_view::npos) {
    unit = NormalizeWord(text.substr(blank));
    text = text.substr(0, blank);
  }
  const std::optional<float> value = ParseNumber(text);
  if (!value || !(*value >= 0) || !std::isfinite(*value)) return BadValue(item);
  if (unit != "" && unit != "oru" && unit != "%" && unit != "fru") return BadValue(item);
  options.tolerance = *value;
  options.tolerance_is_percentage = unit == "%" || unit == "fru";
  return Done{};
}

Result<ShellOptimizationOptions> ParseShellOptions(const char* text) {
  auto required = api::Require(text, "options");
  if (!required.ok()) return required.error();
  auto items = ParseOptionList(text);
  if (!items.ok()) return items.error();
  ShellOptimizationOptions options;
  for (const OptionItem& item : items.value()) {
    if (item.name == "tolerance" && !item.negated) {
      auto parsed = ParseTolerance(item, options);
      if (!parsed.ok()) return parsed.error();
    } else if (item.name == "tolerance") {
      options.tolerance = 0;
    } else if (item.name == "normal tolerance" && item.value && !item.negated) {
      const std::optional<float> degrees = ParseNumber(*item.value);
      if (!degrees || !(*degrees >= 0 && *degrees <= 180)) return BadValue(item);
      options.normal_tolerance_degrees = *degrees;
    } else if (item.name == "orphan elimination" && !item.value) {
      options.orphan_elimination = !item.negated;
    } else {
      return Error(errc::kUnknownOption, "unrecognised shell option '" + item.name + "'");
    }
  }
  return options;
}

// A copy of `count` packed items of type T; null data is an error unless
// there are none.
template <typename T>
Result<std::vector<T>> InputArray(int count, const void* data, const char* what) {
  if (count < 0) return Error(errc::kOutOfRange, std::string(what) + ": negative count");
  if (count == 0) return std::vector<T>();
  auto required = api::Require(data, what);
  if (!required.ok()) return required.error();
  std::vector<T> items(static_cast<size_t>(count));
  std::memcpy(items.data(), data, items.size() * sizeof(T));
  return items;
}

Result<OptimizedShell> Optimize(int pcount, const void* points, const void* normals, int flist_length,
                                const int* face_list, const char* options) {
  auto point_list = InputArray<Point>(pcount, points, "points");
  if (!point_list.ok()) return point_list.error();
  auto normal_list = InputArray<Point>(normals ? pcount : 0, normals, "normals");
  if (!normal_list.ok()) return normal_list.error();
  auto faces = InputArray<int>(flist_length, face_list, "face list");
  if (!faces.ok()) return faces.error();
  auto parsed = ParseShellOptions(options);
  if (!parsed.ok()) return parsed.error();
  const auto not_finite = [](const Point& p) { return !IsFinite(p); };
  if (std::any_of(point_list.value().begin(), point_list.value().end(), not_finite) ||
      std::any_of(normal_list.value().begin(), normal_list.value().end(), not_finite)) {
    return Error(errc::kOutOfRange, "shell points and normals must be finite");
  }
  return OptimizeShell(ShellInput{point_list.value(), normal_list.value(), faces.value()}, parsed.value());
}

}  // namespace

// Every output may be null. On failure nothing is written.
extern "C" void HC_Compute_Optimized_Shell(int pcount, void const* points, void const* normals, int flist_length,
                                           int const* face_list, char const* options, int* new_pcount,
                                           void* new_points, int* new_flist_length, int* new_face_list,
                                           int* point_mapping_list, int* face_mapping_list) {
  // Pure computation on the caller's arrays: no engine lock.
  Result<OptimizedShell> optimized = Error(errc::kOutOfMemory, "out of memory", kFatal);
  try {
    optimized = Optimize(pcount, points, normals, flist_length, face_list, options);
  } catch (const std::bad_alloc&) {
  }
  if (!optimized.ok()) {
    api::Report(optimized.error(), __func__);
    return;
  }
  const OptimizedShell& shell = optimized.value();
  api::Write(new_pcount, static_cast<int>(shell.points.size()));
  api::Write(new_flist_length, static_cast<int>(shell.faces.size()));
  if (new_points != nullptr && !shell.points.empty()) std::memcpy(new_points, shell.points.data(), shell.points.size() * sizeof(Point));
  if (new_face_list != nullptr) std::copy(shell.faces.begin(), shell.faces.end(), new_face_list);
  if (point_mapping_list != nullptr) std::copy(shell.point_mapping.begin(), shell.point_mapping.end(), point_mapping_list);
  if (face_mapping_list != nullptr) std::copy(shell.face_mapping.begin(), shell.face_mapping.end(), face_mapping_list);
}
