#pragma once
// One thread's searches. Each kind of search is a stack of contexts: a
// begin pushes one, an end pops it and the one below carries on, so
// searches nest. A context holds its results computed in full at the
// begin, so later changes to the database do not disturb a search in
// progress (deleted items keep being reported with their old keys).
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace graphics {

struct SearchResult {
  std::string text;  // a type word, a path or a name
  long long key = 0;
};

class SearchStack {
 public:
  void Push(std::vector<SearchResult> results) { contexts_.push_back(Context{std::move(results), 0}); }
  // False when no search is in progress.
  bool Pop() {
    if (contexts_.empty()) return false;
    contexts_.pop_back();
    return true;
  }
  bool active() const { return !contexts_.empty(); }
  // The results of the innermost search; one must be active.
  size_t count() const { return contexts_.back().results.size(); }
  // The next result of the innermost search, or null when all were given.
  const SearchResult* Next() {
    Context& top = contexts_.back();
    return top.next < top.results.size() ? &top.results[top.next++] : nullptr;
  }

 private:
  struct Context {
    std::vector<SearchResult> results;
    size_t next;
  };
  std::vector<Context> contexts_;
};

// Every kind of search a thread may have in progress. Global and local
// texture searches share one stack, since one end call closes either.
struct ThreadSearches {
  SearchStack contents;
  SearchStack segments;
  SearchStack open_segments;
  SearchStack textures;
  SearchStack line_styles;
};

}  // namespace graphics
