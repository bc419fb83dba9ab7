#include "rendering/svg_library.hpp"

#include <dlfcn.h>

#include <optional>

namespace rendering {
namespace {

constexpr const char* file = "librsvg-2.so.2";

template <class Function>
bool find(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  return function != nullptr;
}

std::optional<SVGLibrary> opened() {
  // It stays: its types cannot be taken back.
  void* const library = dlopen(file, RTLD_LAZY | RTLD_LOCAL | RTLD_NODELETE);
  if (library == nullptr) return std::nullopt;
  SVGLibrary functions;
  const bool isWhole = find(library, "rsvg_handle_new_from_data", functions.newFromData) &&
                       find(library, "rsvg_handle_set_dpi", functions.setDPI) &&
                       find(library, "rsvg_handle_get_intrinsic_size_in_pixels", functions.intrinsicSize) &&
                       find(library, "rsvg_handle_get_intrinsic_dimensions", functions.intrinsicDimensions) &&
                       find(library, "rsvg_handle_render_document", functions.renderDocument) &&
                       find(library, "g_object_unref", functions.unref);
  return isWhole ? std::optional(functions) : std::nullopt;
}

}  // namespace

const SVGLibrary* SVGLibrary::open() {
  static const std::optional<SVGLibrary> library = opened();
  return library ? &*library : nullptr;
}

}  // namespace rendering
