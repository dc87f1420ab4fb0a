#pragma once
// Highlights waiting for the next update: an item named by a key path
// (lowest first, -1 standing for any include) drawn with a style segment's
// attributes. Callers hold the engine lock.
#include <string>
#include <vector>

namespace graphics {

struct Highlight {
  std::vector<long long> keys;
  long long style = -1;  // the style segment's key
  std::string options;   // as given, checked for syntax
  bool operator==(const Highlight&) const = default;
};

// Defining the same highlight twice keeps one.
void AddHighlight(Highlight highlight);
// Whether a matching highlight was there.
bool RemoveHighlight(const Highlight& highlight);
const std::vector<Highlight>& Highlights();
// Removes every highlight.
void ClearHighlights();

}  // namespace graphics
