#pragma once

#include <glib-object.h>

#include <memory>

namespace rendering {

struct UnrefGObject {
  void operator()(void* object) const { g_object_unref(object); }
};

/// Owns a reference to an object of the GLib family.
template <class T>
using GObjectHandle = std::unique_ptr<T, UnrefGObject>;

}  // namespace rendering
