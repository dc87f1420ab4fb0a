#pragma once
// Condition expressions of conditional styles and includes: names joined by
// AND, OR, NOT (or &&, ||, !), a comma meaning OR, parentheses grouping; NOT
// binds tighter than AND, AND than OR. Names compare without case; a name
// not set is false.
#include <functional>
#include <string_view>

namespace graphics {

// Whether `expression` holds when `is_set(name)` tells which names are on.
// A malformed expression is false.
bool ConditionHolds(std::string_view expression, const std::function<bool(std::string_view)>& is_set);

}  // namespace graphics
