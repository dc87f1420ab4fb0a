#include "search/segment_spec.h"

#include <string>
#include <unordered_set>

#include "database/segment_path.h"
#include "strings/quoting.h"
#include "strings/text.h"

namespace graphics {

namespace {

constexpr int kAnyRun = -1;
constexpr int kAnyOne = -2;

// A name pattern: characters, with kAnyRun and kAnyOne for the wildcards.
using Pattern = std::vector<int>;

Error BadSpec(std::string_view spec, std::string_view why) {
  return Error(errc::kBadName, "bad segment specification '" + std::string(spec) + "': " + std::string(why));
}

bool Matches(const Pattern& pattern, std::string_view name) {
  // Greedy matching with one backtrack point, enough for "*" and "%".
  size_t p = 0, n = 0, star = std::string::npos, resume = 0;
  while (n < name.size()) {
    if (p < pattern.size() && (pattern[p] == kAnyOne || pattern[p] == static_cast<unsigned char>(name[n]))) {
      ++p;
      ++n;
    } else if (p < pattern.size() && pattern[p] == kAnyRun) {
      star = p++;
      resume = n;
    } else if (star != std::string::npos) {
      p = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == kAnyRun) ++p;
  return p == pattern.size();
}

// A component with wildcards, or nothing if it has none.
Result<std::optional<Pattern>> ParsePattern(std::string_view spec, std::string_view piece) {
  Pattern pattern;
  bool wild = false;
  for (size_t i = 0; i < piece.size(); ++i) {
    const char c = piece[i];
    if (IsQuote(c)) {
      const size_t close = FindClosingQuote(piece, i);
      for (char q : ToLowerAscii(QuotedContent(piece, i, close))) pattern.push_back(static_cast<unsigned char>(q));
      i = close;
    } else if (c == '*' || c == '%') {
      pattern.push_back(c == '*' ? kAnyRun : kAnyOne);
      wild = true;
    } else if (!IsPlainNameChar(c)) {
      return BadSpec(spec, std::string("'") + c + "' must be quoted");
    } else {
      pattern.push_back(static_cast<unsigned char>(ToLowerAscii(std::string(1, c))[0]));
    }
  }
  if (!wild) return std::optional<Pattern>();
  return std::optional<Pattern>(std::move(pattern));
}

// Keeps the first occurrence of each segment.
class SegmentList {
 public:
  void Add(Segment* segment) {
    if (seen_.insert(segment).second) list_.push_back(segment);
  }
  std::vector<Segment*> Take() { return std::move(list_); }

 private:
  std::vector<Segment*> list_;
  std::unordered_set<Segment*> seen_;
};

// `path` with its first group of alternatives spelled out, recursively.
Result<std::vector<std::string>> ExpandAlternatives(std::string_view spec, std::string_view path) {
  size_t open = std::string::npos;
  for (size_t i = 0; i < path.size() && open == std::string::npos; ++i) {
    if (IsQuote(path[i])) {
      i = FindClosingQuote(path, i);
    } else if (path[i] == '(') {
      open = i;
    } else if (path[i] == ')') {
      return BadSpec(spec, "unbalanced parentheses");
    }
  }
  if (open == std::string::npos) return std::vector<std::string>{std::string(path)};
  int depth = 0;
  size_t close = open;
  for (; close < path.size(); ++close) {
    if (IsQuote(path[close])) {
      close = FindClosingQuote(path, close);
    } else if (path[close] == '(') {
      ++depth;
    } else if (path[close] == ')' && --depth == 0) {
      break;
    }
  }
  if (close == path.size()) return BadSpec(spec, "unbalanced parentheses");
  std::vector<std::string> expanded;
  const std::string_view inner = path.substr(open + 1, close - open - 1);
  for (std::string_view alternative : SplitTopLevel(inner, ',')) {
    const std::string joined =
        std::string(path.substr(0, open)) + std::string(TrimBlanks(alternative)) + std::string(path.substr(close + 1));
    auto more = ExpandAlternatives(spec, joined);
    if (!more.ok()) return more.error();
    expanded.insert(expanded.end(), more.value().begin(), more.value().end());
  }
  return expanded;
}

// One component applied to every segment reached so far.
Result<std::vector<Segment*>> Step(Database& database, std::string_view spec, const std::vector<Segment*>& from,
                                   std::string_view raw) {
  const std::string_view piece = TrimBlanks(raw);
  SegmentList next;
  if (piece == "...") {
    for (Segment* segment : from) {
      for (Segment* below : DepthFirst(*segment)) next.Add(below);
    }
    return next.Take();
  }
  auto pattern = ParsePattern(spec, piece);
  if (!pattern.ok()) return pattern.error();
  if (pattern.value()) {
    for (Segment* segment : from) {
      for (Segment& child : segment->children()) {
        if (Matches(*pattern.value(), child.name())) next.Add(&child);
      }
    }
    return next.Take();
  }
  auto component = ParseComponent(spec, piece);
  if (!component.ok()) return component.error();
  const PathComponent& c = component.value();
  for (Segment* segment : from) {
    switch (c.kind) {
      case PathComponent::Kind::kSelf:
        next.Add(segment);
        break;
      case PathComponent::Kind::kOwner:
        if (segment->owner() != nullptr) next.Add(segment->owner());
        break;
      case PathComponent::Kind::kKey: {
        Entity* item = database.Find(c.key);
        if (item != nullptr && item->kind() == EntityKind::kSegment && item->owner() == segment) {
          next.Add(static_cast<Segment*>(item));
        }
        break;
      }
      case PathComponent::Kind::kName:
        if (Segment* child = segment->FindChild(c.name)) next.Add(child);
        break;
    }
  }
  return next.Take();
}

Result<std::vector<Segment*>> MatchPath(Database& database, Segment* base, std::string_view spec,
                                        std::string_view path) {
  auto expanded = database.aliases().Expand(path);
  if (!expanded.ok()) return expanded.error();
  std::string_view rest = TrimBlanks(expanded.value());
  if (rest.empty()) return BadSpec(spec, "an empty path");
  std::vector<Segment*> reached;
  if (rest.front() == '/') {
    reached.push_back(&database.root());
    rest = TrimBlanks(rest.substr(1));
    if (rest.empty()) return reached;
  } else if (base == nullptr) {
    return Error(errc::kRelativeWithNothingOpen, "relative specification '" + std::string(spec) +
                                                     "' with no segment open");
  } else {
    reached.push_back(base);
  }
  for (std::string_view piece : SplitComponents(rest)) {
    auto stepped = Step(database, spec, reached, piece);
    if (!stepped.ok()) return stepped.error();
    reached = std::move(stepped.value());
  }
  return reached;
}

}  // namespace

std::vector<std::string_view> SplitTopLevel(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  int depth = 0;
  size_t start = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if (IsQuote(text[i])) {
      const size_t close = FindClosingQuote(text, i);
      if (close == std::string_view::npos) break;
      i = close;
    } else if (text[i] == '(') {
      ++depth;
    } else if (text[i] == ')') {
      --depth;
    } else if (text[i] == separator && depth == 0) {
      pieces.push_back(text.substr(start, i - start));
      start = i + 1;
    }
  }
  pieces.push_back(text.substr(start));
  return pieces;
}

Result<std::vector<Segment*>> MatchSegments(Database& database, Segment* base, std::string_view spec) {
  for (size_t i = 0; i < spec.size(); ++i) {
    if (!IsQuote(spec[i])) continue;
    i = FindClosingQuote(spec, i);
    if (i == std::string_view::npos) return BadSpec(spec, "unclosed quote");
  }
  SegmentList matched;
  for (std::string_view path : SplitTopLevel(spec, ',')) {
    auto alternatives = ExpandAlternatives(spec, path);
    if (!alternatives.ok()) return alternatives.error();
    for (const std::string& alternative : alternatives.value()) {
      auto found = MatchPath(database, base, spec, alternative);
      if (!found.ok()) return found.error();
      for (Segment* segment : found.value()) matched.Add(segment);
    }
  }
  return matched.Take();
}

}  // namespace graphics
