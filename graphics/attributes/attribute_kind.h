#pragma once
// Every kind of attribute a segment can hold locally, in the order contents
// listings give them. Each value type of the attribute store names its kind.
#include <string_view>

namespace graphics {

enum class AttributeKind {
  kModellingMatrix,
  kUserOptions,
};

// The published name of the attribute ("modelling matrix").
std::string_view AttributeName(AttributeKind kind);

}  // namespace graphics
