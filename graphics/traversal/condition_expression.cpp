#include "traversal/condition_expression.h"

#include <string>
#include <vector>

#include "strings/text.h"

namespace graphics {

namespace {

class Evaluator {
 public:
  Evaluator(std::string_view text, const std::function<bool(std::string_view)>& is_set) : is_set_(is_set) {
    Tokenize(text);
  }

  bool Evaluate() {
    const bool value = Or();
    return ok_ && at_ == tokens_.size() && value;
  }

 private:
  void Tokenize(std::string_view text) {
    std::string word;
    auto flush = [&] {
      if (!word.empty()) tokens_.push_back(NormalizeWord(word));
      word.clear();
    };
    for (size_t i = 0; i < text.size(); ++i) {
      const char c = text[i];
      if (c == '(' || c == ')' || c == '!' || c == ',') {
        flush();
        tokens_.emplace_back(1, c);
      } else if ((c == '&' || c == '|') && i + 1 < text.size() && text[i + 1] == c) {
        flush();
        tokens_.push_back(c == '&' ? "and" : "or");
        ++i;
      } else if (IsBlank(c)) {
        flush();
      } else {
        word += c;
      }
    }
    flush();
  }

  bool Accept(std::string_view token) {
    if (at_ < tokens_.size() && tokens_[at_] == token) {
      ++at_;
      return true;
    }
    return false;
  }

  bool Or() {
    bool value = And();
    while (Accept("or") || Accept(",")) value = And() || value;
    return value;
  }

  bool And() {
    bool value = Not();
    while (Accept("and")) value = Not() && value;
    return value;
  }

  bool Not() {
    if (Accept("not") || Accept("!")) return !Not();
    if (Accept("(")) {
      const bool value = Or();
      if (!Accept(")")) ok_ = false;
      return value;
    }
    if (at_ == tokens_.size() || tokens_[at_] == ")") {
      ok_ = false;
      return false;
    }
    return is_set_(tokens_[at_++]);
  }

  const std::function<bool(std::string_view)>& is_set_;
  std::vector<std::string> tokens_;
  size_t at_ = 0;
  bool ok_ = true;
};

}  // namespace

bool ConditionHolds(std::string_view expression, const std::function<bool(std::string_view)>& is_set) {
  return Evaluator(expression, is_set).Evaluate();
}

}  // namespace graphics
