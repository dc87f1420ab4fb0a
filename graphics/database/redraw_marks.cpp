#include "database/redraw_marks.h"

#include <algorithm>
#include <string>
#include <vector>

#include "attributes/option_string.h"

namespace graphics {

namespace {

// In the order of UpdateWord.
enum class UpdateWord { kRedrawEverything, kRedrawPartial, kRefresh, kCompileOnly, kUnsetRedraw };
constexpr std::string_view kUpdateWords[] = {"redraw everything", "redraw partial", "refresh", "compile only",
                                             "unset redraw"};

void ApplyWord(UpdateWord word, RedrawMarks& marks) {
  switch (word) {
    case UpdateWord::kRedrawEverything:
      marks.Raise(RedrawMarks::Redraw::kEverything);
      break;
    case UpdateWord::kRedrawPartial:
      marks.Raise(RedrawMarks::Redraw::kPartial);
      break;
    case UpdateWord::kRefresh:
      marks.refresh = true;
      break;
    case UpdateWord::kCompileOnly:
      marks.compile_only = true;
      break;
    case UpdateWord::kUnsetRedraw:
      marks = RedrawMarks();
      break;
  }
}

}  // namespace

void RedrawMarks::Widen(const WindowArea& more) {
  if (!area) {
    area = more;
    return;
  }
  area = WindowArea{std::min(area->left, more.left), std::max(area->right, more.right),
                    std::min(area->bottom, more.bottom), std::max(area->top, more.top)};
}

Status ApplyUpdateWords(std::string_view list, RedrawMarks& marks) {
  auto items = ParseOptionList(list);
  if (!items.ok()) return items.error();
  std::vector<UpdateWord> words;
  for (const OptionItem& item : items.value()) {
    const auto index = FindOptionName(item.name, kUpdateWords);
    if (!index || item.negated || item.value) {
      return Error(errc::kUnknownOption, "unrecognised update option '" + std::string(item.negated ? "no " : "") +
                                             item.name + (item.value ? "=" + *item.value : "") + "'");
    }
    words.push_back(static_cast<UpdateWord>(*index));
  }
  for (UpdateWord word : words) ApplyWord(word, marks);
  return Done{};
}

}  // namespace graphics
