#include "text/font_metrics.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <array>
#include <map>
#include <mutex>
#include <string>

#include "strings/text.h"

namespace graphics {

namespace {

// Debian's fonts-dejavu-core puts its faces here.
constexpr std::string_view kFontDirectory = "/usr/share/fonts/truetype/dejavu/";

std::string FontFile(const FontChoice& choice) {
  std::string base;
  switch (choice.family) {
    case FontChoice::Family::kSans:
      base = "DejaVuSans";
      break;
    case FontChoice::Family::kSerif:
      base = "DejaVuSerif";
      break;
    case FontChoice::Family::kMono:
      base = "DejaVuSansMono";
      break;
  }
  std::string style;
  if (choice.bold) style += "Bold";
  if (choice.italic) style += choice.family == FontChoice::Family::kSerif ? "Italic" : "Oblique";
  return std::string(kFontDirectory) + base + (style.empty() ? "" : "-" + style) + ".ttf";
}

// Outline points to polygons: curves become straight pieces, each a
// sixteenth of the curve's parameter.
constexpr int kCurvePieces = 16;

struct Flattener {
  std::vector<std::vector<Point>> contours;
  double scale = 1;  // font units to ems
  double x_offset = 0;
  Point last{};

  Point At(const FT_Vector* v) const {
    return Point{static_cast<float>(v->x * scale + x_offset), static_cast<float>(v->y * scale), 0};
  }
  void Add(const Point& p) {
    contours.back().push_back(p);
    last = p;
  }
};

int MoveTo(const FT_Vector* to, void* user) {
  auto* f = static_cast<Flattener*>(user);
  f->contours.emplace_back();
  f->Add(f->At(to));
  return 0;
}

int LineTo(const FT_Vector* to, void* user) {
  auto* f = static_cast<Flattener*>(user);
  f->Add(f->At(to));
  return 0;
}

int ConicTo(const FT_Vector* control, const FT_Vector* to, void* user) {
  auto* f = static_cast<Flattener*>(user);
  const Point p0 = f->last, p1 = f->At(control), p2 = f->At(to);
  for (int i = 1; i <= kCurvePieces; ++i) {
    const float t = static_cast<float>(i) / kCurvePieces, u = 1 - t;
    f->Add(Point{u * u * p0.x + 2 * u * t * p1.x + t * t * p2.x, u * u * p0.y + 2 * u * t * p1.y + t * t * p2.y, 0});
  }
  return 0;
}

int CubicTo(const FT_Vector* c1, const FT_Vector* c2, const FT_Vector* to, void* user) {
  auto* f = static_cast<Flattener*>(user);
  const Point p0 = f->last, p1 = f->At(c1), p2 = f->At(c2), p3 = f->At(to);
  for (int i = 1; i <= kCurvePieces; ++i) {
    const float t = static_cast<float>(i) / kCurvePieces, u = 1 - t;
    const float a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
    f->Add(Point{a * p0.x + b * p1.x + c * p2.x + d * p3.x, a * p0.y + b * p1.y + c * p2.y + d * p3.y, 0});
  }
  return 0;
}

double SignedArea(const std::vector<Point>& contour) {
  double area = 0;
  for (size_t i = 0; i < contour.size(); ++i) {
    const Point& a = contour[i];
    const Point& b = contour[(i + 1) % contour.size()];
    area += static_cast<double>(a.x) * b.y - static_cast<double>(b.x) * a.y;
  }
  return area / 2;
}

}  // namespace

namespace {

// The advance of glyph `code` in ems, 0 when the face lacks it. Loads the
// glyph, so calls on a shared face hold its glyph lock.
double LoadAdvance(FT_Face face, double units_per_em, char32_t code) {
  const FT_UInt glyph = FT_Get_Char_Index(face, code);
  if (glyph == 0 || FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE) != 0) return 0;
  return face->glyph->advance.x / units_per_em;
}

}  // namespace

struct FontMetrics::Face {
  FT_Library library = nullptr;
  FT_Face face = nullptr;
  double units_per_em = 1;
  double line_height = 1;  // ascender to descender plus gap, in ems
  // Advances of the 256 Latin-1 characters, in ems; measured once.
  std::array<double, 256> advances{};
  // Advances of the other characters met so far, under glyph_mutex.
  std::map<char32_t, double> other_advances;
  // FreeType faces are not safe to share between threads while loading
  // glyphs; outlines and new advances take this lock.
  std::mutex glyph_mutex;

  ~Face() {
    if (face != nullptr) FT_Done_Face(face);
    if (library != nullptr) FT_Done_FreeType(library);
  }
};

FontChoice ChooseFont(std::string_view name, bool bold, bool italic) {
  const std::string word = NormalizeWord(name);
  FontChoice choice{FontChoice::Family::kSans, bold, italic};
  if (word == "typewriter" || word.starts_with("mono") || word.find("courier") != std::string::npos ||
      word.find("mono") != std::string::npos) {
    choice.family = FontChoice::Family::kMono;
  } else if (word.find("sans") == std::string::npos &&
             (word.find("serif") != std::string::npos || word.find("roman") != std::string::npos ||
              word.find("times") != std::string::npos)) {
    choice.family = FontChoice::Family::kSerif;
  }
  return choice;
}

FontMetrics::FontMetrics(std::unique_ptr<Face> face) : face_(std::move(face)) {}
FontMetrics::~FontMetrics() = default;

Result<const FontMetrics*> FontMetrics::For(const FontChoice& choice) {
  static std::mutex mutex;
  static std::map<std::tuple<int, bool, bool>, std::unique_ptr<FontMetrics>> loaded;
  std::lock_guard lock(mutex);
  const auto key = std::make_tuple(static_cast<int>(choice.family), choice.bold, choice.italic);
  if (auto found = loaded.find(key); found != loaded.end()) return found->second.get();

  auto face = std::make_unique<Face>();
  const std::string file = FontFile(choice);
  if (FT_Init_FreeType(&face->library) != 0 || FT_New_Face(face->library, file.c_str(), 0, &face->face) != 0) {
    return Error(errc::kOutOfRange, "cannot read the font file " + file);
  }
  face->units_per_em = face->face->units_per_EM;
  face->line_height = face->face->height / face->units_per_em;
  for (char32_t c = 0; c < face->advances.size(); ++c) {
    face->advances[c] = LoadAdvance(face->face, face->units_per_em, c);
  }
  auto metrics = std::unique_ptr<FontMetrics>(new FontMetrics(std::move(face)));
  const FontMetrics* result = metrics.get();
  loaded.emplace(key, std::move(metrics));
  return result;
}

double FontMetrics::Advance(char32_t c) const {
  if (c < face_->advances.size()) return face_->advances[c];
  std::lock_guard lock(face_->glyph_mutex);
  auto [found, added] = face_->other_advances.try_emplace(c, 0);
  if (added) found->second = LoadAdvance(face_->face, face_->units_per_em, c);
  return found->second;
}

TextSize FontMetrics::Measure(std::u32string_view text, double spacing, double line_spacing) const {
  TextSize size;
  double line = 0;
  int lines = 1;
  for (char32_t c : text) {
    if (c == '\n') {
      size.width = std::max(size.width, line);
      line = 0;
      ++lines;
      continue;
    }
    line += Advance(c) * spacing;
  }
  size.width = std::max(size.width, line);
  size.height = face_->line_height * (1 + (lines - 1) * line_spacing);
  return size;
}

TextOutline FontMetrics::Outline(std::u32string_view text, double spacing) const {
  std::lock_guard lock(face_->glyph_mutex);
  Flattener flattener;
  flattener.scale = 1 / face_->units_per_em;
  FT_Outline_Funcs funcs{};
  funcs.move_to = MoveTo;
  funcs.line_to = LineTo;
  funcs.conic_to = ConicTo;
  funcs.cubic_to = CubicTo;
  for (char32_t code : text) {
    const FT_UInt glyph = FT_Get_Char_Index(face_->face, code);
    double advance = 0;
    if (glyph != 0 && FT_Load_Glyph(face_->face, glyph, FT_LOAD_NO_SCALE) == 0) {
      advance = face_->face->glyph->advance.x / face_->units_per_em;
      if (face_->face->glyph->format == FT_GLYPH_FORMAT_OUTLINE) {
        FT_Outline_Decompose(&face_->face->glyph->outline, &funcs, &flattener);
      }
    }
    flattener.x_offset += advance * spacing;
  }
  TextOutline outline;
  for (std::vector<Point>& contour : flattener.contours) {
    // The closing point repeats the first; shells close faces themselves.
    if (contour.size() > 1 && contour.front() == contour.back()) contour.pop_back();
    if (contour.size() < 3) continue;
    // TrueType draws outer contours clockwise, holes counter-clockwise.
    const bool hole = SignedArea(contour) > 0;
    const int count = static_cast<int>(contour.size());
    outline.faces.push_back(hole ? -count : count);
    for (const Point& p : contour) {
      outline.faces.push_back(static_cast<int>(outline.points.size()));
      outline.points.push_back(p);
    }
  }
  return outline;
}

}  // namespace graphics
