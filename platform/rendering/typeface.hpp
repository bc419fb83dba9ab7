#pragma once

#include <cairo.h>
#include <hb.h>

#include <filesystem>
#include <memory>

namespace rendering {

/// A font file that is open: its letters can be shaped, measured and drawn. Lengths are in em: they hold at every size.
class Typeface {
 public:
  /// Null where the file is missing or no font.
  static std::unique_ptr<const Typeface> open(const std::filesystem::path& file, int index = 0);

  bool has(char32_t character) const;
  /// Of the line that it wants, the gap between two lines included in `ascent`.
  struct Extents {
    double ascent = 0;
    double descent = 0;
  };
  Extents extents() const;
  /// How high the letter "H" reaches.
  double capHeight() const;

  /// To shape with; its units are `unitsPerEm`.
  hb_font_t* shaper() const { return shaper_.get(); }
  double unitsPerEm() const { return unitsPerEm_; }

  /// To draw with, opened when it is first asked for; null where it cannot be drawn.
  cairo_font_face_t* pen() const;

 private:
  struct DestroyShaper {
    void operator()(hb_font_t* font) const { hb_font_destroy(font); }
  };
  struct DestroyPen {
    void operator()(cairo_font_face_t* face) const { cairo_font_face_destroy(face); }
  };

  Typeface(std::filesystem::path file, int index, hb_face_t* face);

  std::filesystem::path file_;
  int index_;
  double unitsPerEm_;
  std::unique_ptr<hb_font_t, DestroyShaper> shaper_;
  mutable std::unique_ptr<cairo_font_face_t, DestroyPen> pen_;
};

}  // namespace rendering
