#pragma once
// The process-wide system options: switches for reports of each severity,
// per-pair report rules, the cap on returned string lengths, and the other
// published names, which are accepted and kept but drive nothing yet.
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "attributes/option_string.h"
#include "errors/error.h"

namespace graphics {

class SystemOptions {
 public:
  // Every option at its default.
  SystemOptions();

  // Applies a list in the option-string grammar, merging per option. A list
  // with any bad item changes nothing.
  Status Define(std::string_view list);
  // Every current setting, in the order of the vocabulary; defining the
  // result again restores them.
  std::string Format() const;
  // The value of one option as a show-one call gives it ("on", "4096",
  // "20/2001,22/2201"); "" for an accepted option never set.
  Result<std::string> FormatOne(std::string_view name) const;

  // Whether a report of that kind goes to the handlers. A "once" rule is
  // used up here, so the decision and its bookkeeping stay together.
  bool Admit(int category, int specific, int severity);
  // Most characters a returned string may hold, terminator excluded.
  size_t c_string_length() const;

 private:
  enum class PairRule { kEnable, kDisable, kOnce };
  using Pair = std::pair<int, int>;

  static PairRule RuleOf(size_t option);
  Status Apply(size_t option, const OptionItem& item);
  std::string FormatValue(size_t option) const;

  // Values of the non-pair options, indexed like the vocabulary; "" = unset.
  std::vector<std::string> values_;
  std::map<Pair, PairRule> pair_rules_;
};

}  // namespace graphics
