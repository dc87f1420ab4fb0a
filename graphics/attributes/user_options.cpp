#include "attributes/user_options.h"

#include <algorithm>

namespace graphics {

namespace {

std::string StoredValue(const OptionItem& item) {
  if (item.value) return *item.value;
  return item.negated ? "off" : "on";
}

}  // namespace

void UserOptions::Merge(const std::vector<OptionItem>& items) {
  for (const OptionItem& item : items) {
    auto found = std::find_if(entries_.begin(), entries_.end(),
                              [&](const auto& entry) { return entry.first == item.name; });
    if (found != entries_.end()) {
      found->second = StoredValue(item);
    } else {
      entries_.emplace_back(item.name, StoredValue(item));
    }
  }
}

bool UserOptions::Remove(std::string_view name) {
  auto found = std::find_if(entries_.begin(), entries_.end(), [&](const auto& entry) { return entry.first == name; });
  if (found == entries_.end()) return false;
  entries_.erase(found);
  return true;
}

const std::string* UserOptions::Find(std::string_view name) const {
  auto found = std::find_if(entries_.begin(), entries_.end(), [&](const auto& entry) { return entry.first == name; });
  return found == entries_.end() ? nullptr : &found->second;
}

std::string UserOptions::Format() const {
  std::string list;
  for (const auto& [name, value] : entries_) {
    if (!list.empty()) list += ',';
    if (value == "off") list += "no ";
    list += FormatOptionText(name);
    if (value != "on" && value != "off") list += '=' + value;
  }
  return list;
}

}  // namespace graphics
