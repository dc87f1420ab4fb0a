#include "traversal/name_search.h"

#include <array>

namespace graphics::name_search {

namespace {

struct Search {
  std::vector<std::string> names;
  size_t next = 0;
};

std::vector<Search>& Stack(Kind kind) {
  thread_local std::array<std::vector<Search>, 2> stacks;
  return stacks[static_cast<size_t>(kind)];
}

Error NoSearch() { return Error(errc::kNothingOpen, "no search is in progress"); }

}  // namespace

void Begin(Kind kind, std::vector<std::string> names) { Stack(kind).push_back(Search{std::move(names), 0}); }

Result<int> Count(Kind kind) {
  if (Stack(kind).empty()) return NoSearch();
  return static_cast<int>(Stack(kind).back().names.size());
}

Result<std::optional<std::string>> Next(Kind kind) {
  if (Stack(kind).empty()) return NoSearch();
  Search& search = Stack(kind).back();
  if (search.next == search.names.size()) return std::optional<std::string>();
  return std::optional<std::string>(search.names[search.next++]);
}

Status End(Kind kind) {
  if (Stack(kind).empty()) return NoSearch();
  Stack(kind).pop_back();
  return Done{};
}

}  // namespace graphics::name_search
