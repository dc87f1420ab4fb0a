#include "system/highlights.h"

#include <algorithm>

namespace graphics {

namespace {

std::vector<Highlight>& Table() {
  static std::vector<Highlight> highlights;
  return highlights;
}

}  // namespace

void AddHighlight(Highlight highlight) {
  if (std::find(Table().begin(), Table().end(), highlight) == Table().end()) Table().push_back(std::move(highlight));
}

bool RemoveHighlight(const Highlight& highlight) { return std::erase(Table(), highlight) > 0; }

const std::vector<Highlight>& Highlights() { return Table(); }

void ClearHighlights() { Table().clear(); }

}  // namespace graphics
