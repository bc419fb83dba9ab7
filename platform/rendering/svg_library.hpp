#pragma once

#include <librsvg/rsvg.h>

#include <memory>

namespace rendering {

/// The functions of librsvg that pictures use. The library comes with fifteen others and is opened when the first SVG
/// is drawn: a widget without one does not wait for them.
struct SVGLibrary {
  decltype(&rsvg_handle_new_from_data) newFromData = nullptr;
  decltype(&rsvg_handle_set_dpi) setDPI = nullptr;
  decltype(&rsvg_handle_get_intrinsic_size_in_pixels) intrinsicSize = nullptr;
  decltype(&rsvg_handle_get_intrinsic_dimensions) intrinsicDimensions = nullptr;
  decltype(&rsvg_handle_render_document) renderDocument = nullptr;
  decltype(&g_object_unref) unref = nullptr;

  /// Null where it is not installed: there are no SVG pictures then.
  static const SVGLibrary* open();
};

struct UnrefSVG {
  void operator()(RsvgHandle* handle) const { SVGLibrary::open()->unref(handle); }
};
/// An SVG that was read; the library is open.
using SVGHandle = std::unique_ptr<RsvgHandle, UnrefSVG>;

}  // namespace rendering
