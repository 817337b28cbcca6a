// Writes OpenEXR files, which libvips only reads.
#pragma once

#include "platform/imageio/Vips.h"

struct WriteOptions;

namespace imageio {

/// `image` is three or four bands of linear premultiplied floats; the file has half floats. Answers 0, or -1 with a
/// pending libvips error.
int writeExr(VipsImage* image, VipsTarget* target, const WriteOptions& options);

} // namespace imageio
