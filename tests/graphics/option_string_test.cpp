// The option-list grammar every attribute family shares.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "attributes/option_string.h"

namespace {

using graphics::FindOptionName;
using graphics::FormatOptionText;
using graphics::OptionItem;
using graphics::ParseOptionList;
using graphics::SubListBody;

// Items as "name", "no name" or "name=<value>", for compact expectations.
std::string Describe(const std::vector<OptionItem>& items) {
  std::string out;
  for (const OptionItem& item : items) {
    if (!out.empty()) out += " | ";
    out += (item.negated ? "no " : "") + item.name;
    if (item.value) out += "=<" + *item.value + ">";
  }
  return out;
}

struct ParseCase {
  const char* text;
  const char* items;
};

TEST(OptionString, CutsListsIntoItems) {
  const ParseCase cases[] = {
      {"", ""},
      {" , ,", ""},
      {"Alpha", "alpha"},
      {"  Two   Words  ", "two words"},
      {"no Shadows", "no shadows"},
      {"NO   lights", "no lights"},
      {"normal", "normal"},
      {"a = 1, b=2", "a=<1> | b=<2>"},
      {"title = `Hello, World`", "title=<`Hello, World`>"},
      {"q = 'it''s'", "q=<'it''s'>"},
      {"tick = `x'", "tick=<`x'>"},
      {"lock = (color, visibility = (faces, edges))", "lock=<(color, visibility = (faces, edges))>"},
      {"expr = a=b", "expr=<a=b>"},
      {"'Quoted, Name' = v", "quoted, name=<v>"},
      {"size = 0.03 sru", "size=<0.03 sru>"},
  };
  for (const ParseCase& c : cases) {
    auto parsed = ParseOptionList(c.text);
    ASSERT_TRUE(parsed.ok()) << c.text << ": " << parsed.error().message();
    EXPECT_EQ(Describe(parsed.value()), c.items) << c.text;
  }
}

TEST(OptionString, RejectsMalformedLists) {
  const char* const malformed[] = {
      "a = 'unclosed", "a = (b, c", "a = b)", "= value", "a =", "no a = 1", "a(b) = 1", "'' = 1",
  };
  for (const char* text : malformed) {
    auto parsed = ParseOptionList(text);
    ASSERT_FALSE(parsed.ok()) << text;
    EXPECT_EQ(parsed.error().category(), graphics::kCategoryOption) << text;
    EXPECT_FALSE(parsed.error().message().empty());
  }
}

TEST(OptionString, RecognisesOneSubList) {
  EXPECT_EQ(SubListBody("(a, b)").value_or("-"), "a, b");
  EXPECT_EQ(SubListBody("((a))").value_or("-"), "(a)");
  EXPECT_EQ(SubListBody("('x)')").value_or("-"), "'x)'");
  EXPECT_FALSE(SubListBody("(a)(b)"));
  EXPECT_FALSE(SubListBody("a"));
  EXPECT_FALSE(SubListBody("(a"));
}

TEST(OptionString, FindsNamesWithOptionalPlural) {
  constexpr std::array<std::string_view, 3> vocabulary{"errors", "info", "edge"};
  EXPECT_EQ(FindOptionName("errors", vocabulary), 0u);
  EXPECT_EQ(FindOptionName("error", vocabulary), 0u);
  EXPECT_EQ(FindOptionName("edges", vocabulary), 2u);
  EXPECT_EQ(FindOptionName("info", vocabulary), 1u);
  EXPECT_FALSE(FindOptionName("err", vocabulary));
  EXPECT_FALSE(FindOptionName("infos s", vocabulary));
}

TEST(OptionString, FormatsTextThatWouldNotReadBack) {
  EXPECT_EQ(FormatOptionText("plain words"), "plain words");
  EXPECT_EQ(FormatOptionText("a,b"), "`a,b`");
  EXPECT_EQ(FormatOptionText("x=y"), "`x=y`");
  EXPECT_EQ(FormatOptionText(" padded"), "` padded`");
  EXPECT_EQ(FormatOptionText("no way"), "`no way`");
  EXPECT_EQ(FormatOptionText("back`tick"), "`back``tick`");
  // What FormatOptionText writes parses back to the same text.
  for (const char* text : {"a,b", "x=y", "no way", "back`tick", "(p)"}) {
    auto parsed = ParseOptionList(FormatOptionText(text));
    ASSERT_TRUE(parsed.ok()) << text;
    ASSERT_EQ(parsed.value().size(), 1u) << text;
    EXPECT_EQ(parsed.value()[0].name, text);
    EXPECT_FALSE(parsed.value()[0].negated);
  }
}

}  // namespace
