#include "rendering/typeface.hpp"

#include <cairo-ft.h>

namespace rendering {
namespace {

using Blob = std::unique_ptr<hb_blob_t, decltype([](hb_blob_t* blob) { hb_blob_destroy(blob); })>;
using Face = std::unique_ptr<hb_face_t, decltype([](hb_face_t* face) { hb_face_destroy(face); })>;

/// FreeType's own state, which lives as long as a face that was opened with it.
std::shared_ptr<FT_LibraryRec_> freeType() {
  static const std::shared_ptr<FT_LibraryRec_> library = [] {
    FT_Library made = nullptr;
    FT_Init_FreeType(&made);
    return std::shared_ptr<FT_LibraryRec_>(made, [](FT_Library last) { FT_Done_FreeType(last); });
  }();
  return library;
}

/// What Cairo draws a face from. Cairo keeps faces longer than those who use them.
class DrawnFace {
 public:
  DrawnFace(const std::filesystem::path& file, int index) : library_(freeType()) {
    if (FT_New_Face(library_.get(), file.c_str(), index, &face_) != 0) face_ = nullptr;
  }
  ~DrawnFace() {
    if (face_ != nullptr) FT_Done_Face(face_);
  }
  DrawnFace(const DrawnFace&) = delete;
  DrawnFace& operator=(const DrawnFace&) = delete;

  FT_Face get() const { return face_; }

 private:
  std::shared_ptr<FT_LibraryRec_> library_;
  FT_Face face_ = nullptr;
};

}  // namespace

std::unique_ptr<const Typeface> Typeface::open(const std::filesystem::path& file, int index) {
  const Blob blob(hb_blob_create_from_file_or_fail(file.c_str()));
  if (!blob) return nullptr;
  const Face face(hb_face_create(blob.get(), static_cast<unsigned>(index)));
  if (hb_face_get_glyph_count(face.get()) == 0) return nullptr;
  return std::unique_ptr<const Typeface>(new Typeface(file, index, face.get()));
}

Typeface::Typeface(std::filesystem::path file, int index, hb_face_t* face)
    : file_(std::move(file)), index_(index), unitsPerEm_(hb_face_get_upem(face)), shaper_(hb_font_create(face)) {}

bool Typeface::has(char32_t character) const {
  hb_codepoint_t glyph = 0;
  return hb_font_get_nominal_glyph(shaper_.get(), character, &glyph) != 0;
}

Typeface::Extents Typeface::extents() const {
  hb_font_extents_t extents;
  hb_font_get_h_extents(shaper_.get(), &extents);
  return {.ascent = (extents.ascender + extents.line_gap) / unitsPerEm_, .descent = -extents.descender / unitsPerEm_};
}

double Typeface::capHeight() const {
  hb_codepoint_t glyph = 0;
  hb_glyph_extents_t extents;
  hb_font_get_nominal_glyph(shaper_.get(), U'H', &glyph);
  if (hb_font_get_glyph_extents(shaper_.get(), glyph, &extents) == 0) return 0;
  return -extents.height / unitsPerEm_;
}

cairo_font_face_t* Typeface::pen() const {
  if (pen_) return pen_.get();
  auto drawn = std::make_unique<DrawnFace>(file_, index_);
  if (drawn->get() == nullptr) return nullptr;
  pen_.reset(cairo_ft_font_face_create_for_ft_face(drawn->get(), FT_LOAD_NO_HINTING));
  static const cairo_user_data_key_t key{};
  const auto destroy = [](void* face) { const std::unique_ptr<DrawnFace> last(static_cast<DrawnFace*>(face)); };
  DrawnFace* const kept = drawn.release();  // by Cairo
  if (cairo_font_face_set_user_data(pen_.get(), &key, kept, destroy) != CAIRO_STATUS_SUCCESS) {
    pen_.reset();
    destroy(kept);
  }
  return pen_.get();
}

}  // namespace rendering
