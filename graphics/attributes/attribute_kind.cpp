#include "attributes/attribute_kind.h"

namespace graphics {

std::string_view AttributeName(AttributeKind kind) {
  switch (kind) {
    case AttributeKind::kModellingMatrix:
      return "modelling matrix";
    case AttributeKind::kUserOptions:
      return "user options";
  }
  return "";
}

}  // namespace graphics
