// Pictures that are built into the program, looked up by resource type and number.
#pragma once

#include <memory>

#include "platform/canvas.h"

namespace tarnix {

enum class ResourceType {
    Png,    ///< image strips and icons of controls, with alpha
    Bitmap, ///< backgrounds, outlines and colour-keyed strips, opaque
    Icon    ///< the program's icon, with alpha
};

/// A source of pictures by number. The picture belongs to the source and lives as long as it.
class Resources {
  public:
    virtual ~Resources() = default;
    /// None when there is no such resource. Cheap from the second call on.
    virtual const Image* find(ResourceType type, unsigned id) = 0;
};

/// The source in use: at first the pictures built into the program.
Resources& resources();
/// Puts another source in place, none for the built-in one; the caller keeps it alive.
void setResources(Resources* source);

} // namespace tarnix
