// ZString's searching, replacing, splitting and formatting on a 1 MB text,
// narrow and wide, against the same work on std::string and std::u16string.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

#include "sceneward/foundation/zstring.h"

namespace {

constexpr size_t kTextBytes = 1 << 20;

// Words and separators in a fixed pseudo-random order, about 1 MB of ASCII
// with a needle at the very end, so that Find walks the whole text.
const std::string& NarrowText() {
  static const std::string text = [] {
    static const char* const kWords[] = {"lorem", "ipsum", "dolor", "sit", "amet",
                                         "consectetur", "adipiscing", "elit", "sed", "do"};
    static const char kSeparators[] = {' ', ' ', ' ', ',', ';'};
    std::string result;
    unsigned state = 12345;
    while (result.size() < kTextBytes) {
      state = state * 1103515245u + 12345u;
      result += kWords[(state >> 16) % 10];
      result += kSeparators[(state >> 8) % 5];
    }
    return result + "needle";
  }();
  return text;
}

const std::u16string& WideText() {
  static const std::u16string text(NarrowText().begin(), NarrowText().end());
  return text;
}

void ZStringFindNarrow(benchmark::State& state) {
  const ZString text(NarrowText());
  for (auto _ : state) benchmark::DoNotOptimize(text.Find("needle"));
}

void StdFindNarrow(benchmark::State& state) {
  const std::string& text = NarrowText();
  for (auto _ : state) benchmark::DoNotOptimize(text.find("needle"));
}

void ZStringFindWide(benchmark::State& state) {
  const ZString text(WideText());
  const ZString needle(u"needle");
  for (auto _ : state) benchmark::DoNotOptimize(text.Find(needle));
}

void StdFindWide(benchmark::State& state) {
  const std::u16string& text = WideText();
  for (auto _ : state) benchmark::DoNotOptimize(text.find(u"needle"));
}

// Each round replaces on a fresh copy, the copy included in the time on
// both sides.
void ZStringReplaceNarrow(benchmark::State& state) {
  const ZString original(NarrowText());
  for (auto _ : state) {
    ZString text(original);
    benchmark::DoNotOptimize(text.Replace("dolor", "DOLORES"));
  }
}

template <typename String>
int StdReplace(String& text, const String& what, const String& with) {
  String result;
  size_t copied = 0;
  int count = 0;
  for (size_t match = text.find(what); match != String::npos; match = text.find(what, copied)) {
    result.append(text, copied, match - copied).append(with);
    copied = match + what.size();
    ++count;
  }
  result.append(text, copied);
  text.swap(result);
  return count;
}

void StdReplaceNarrow(benchmark::State& state) {
  for (auto _ : state) {
    std::string text(NarrowText());
    benchmark::DoNotOptimize(StdReplace(text, std::string("dolor"), std::string("DOLORES")));
  }
}

void ZStringReplaceWide(benchmark::State& state) {
  const ZString original(WideText());
  const ZString what(u"dolor");
  const ZString with(u"DOLORES");
  for (auto _ : state) {
    ZString text(original);
    benchmark::DoNotOptimize(text.Replace(what, with));
  }
}

void StdReplaceWide(benchmark::State& state) {
  for (auto _ : state) {
    std::u16string text(WideText());
    benchmark::DoNotOptimize(StdReplace(text, std::u16string(u"dolor"), std::u16string(u"DOLORES")));
  }
}

void ZStringSplitNarrow(benchmark::State& state) {
  const ZString text(NarrowText());
  for (auto _ : state) {
    std::vector<ZString> pieces;
    text.SplitByChars(" ,;", pieces);
    benchmark::DoNotOptimize(pieces.data());
  }
}

template <typename String>
void StdSplit(const String& text, const typename String::value_type* delims,
              std::vector<String>& out) {
  size_t from = 0;
  for (size_t found = text.find_first_of(delims); found != String::npos;
       found = text.find_first_of(delims, from)) {
    out.push_back(text.substr(from, found - from));
    from = found + 1;
  }
  out.push_back(text.substr(from));
}

void StdSplitNarrow(benchmark::State& state) {
  for (auto _ : state) {
    std::vector<std::string> pieces;
    StdSplit(NarrowText(), " ,;", pieces);
    benchmark::DoNotOptimize(pieces.data());
  }
}

void ZStringSplitWide(benchmark::State& state) {
  const ZString text(WideText());
  const ZString delims(u" ,;");
  for (auto _ : state) {
    std::vector<ZString> pieces;
    text.SplitByChars(delims, pieces);
    benchmark::DoNotOptimize(pieces.data());
  }
}

void StdSplitWide(benchmark::State& state) {
  for (auto _ : state) {
    std::vector<std::u16string> pieces;
    StdSplit(WideText(), u" ,;", pieces);
    benchmark::DoNotOptimize(pieces.data());
  }
}

// Format puts the 1 MB text and a number into a new string.
void ZStringFormatNarrow(benchmark::State& state) {
  const char* text = NarrowText().c_str();
  ZString result;
  for (auto _ : state) {
    result.Format("%s|%d", text, 42);
    benchmark::DoNotOptimize(result.GetLength());
  }
}

void StdFormatNarrow(benchmark::State& state) {
  const char* text = NarrowText().c_str();
  for (auto _ : state) {
    const int length = std::snprintf(nullptr, 0, "%s|%d", text, 42);
    std::string result(static_cast<size_t>(length) + 1, '\0');
    std::snprintf(result.data(), result.size(), "%s|%d", text, 42);
    benchmark::DoNotOptimize(result.data());
  }
}

void ZStringFormatWide(benchmark::State& state) {
  const char16_t* text = WideText().c_str();
  ZString result;
  for (auto _ : state) {
    result.Format(u"%s|%d", text, 42);
    benchmark::DoNotOptimize(result.GetLength());
  }
}

// The standard library has no 16-bit printf: the same text is put together
// by appending.
void StdFormatWide(benchmark::State& state) {
  for (auto _ : state) {
    std::u16string result(WideText());
    result += u"|";
    const std::string number = std::to_string(42);
    result.append(number.begin(), number.end());
    benchmark::DoNotOptimize(result.data());
  }
}

BENCHMARK(ZStringFindNarrow);
BENCHMARK(StdFindNarrow);
BENCHMARK(ZStringFindWide);
BENCHMARK(StdFindWide);
BENCHMARK(ZStringReplaceNarrow);
BENCHMARK(StdReplaceNarrow);
BENCHMARK(ZStringReplaceWide);
BENCHMARK(StdReplaceWide);
BENCHMARK(ZStringSplitNarrow);
BENCHMARK(StdSplitNarrow);
BENCHMARK(ZStringSplitWide);
BENCHMARK(StdSplitWide);
BENCHMARK(ZStringFormatNarrow);
BENCHMARK(StdFormatNarrow);
BENCHMARK(ZStringFormatWide);
BENCHMARK(StdFormatWide);

}  // namespace
