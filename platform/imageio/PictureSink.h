// Decodes a picture straight into a bitmap.
#pragma once

#include "platform/coreimage/CIBitmap.h"
#include "platform/imageio/PictureReader.h"
#include "platform/imageio/Vips.h"

namespace imageio {

enum class SinkEnd { Complete, Damaged, TimeOver, Cancelled };

struct SinkResult {
    CIBitmap bitmap; // null unless the end is Complete
    SinkEnd end = SinkEnd::Damaged;
};

/// That the pixels of one picture may take.
std::int64_t mostBytes(const ReadOptions& options);

/// Throws std::bad_alloc for more than the options allow. Memory that the system promises is not always there when it
/// is used, and then it ends the program: better to be refused before.
void requireMemory(int width, int height, CIFormat format, const ReadOptions& options);

/// A bitmap whose rows are packed, and where its pixels are to be written.
struct NewBitmap {
    CIBitmap bitmap;
    std::byte* pixels;
};

/// A bitmap of zeroes in the memory that the options name. Throws std::bad_alloc when there is none.
NewBitmap bitmapFor(
    int width, int height, CIFormat format, CIColorSpace space, CIAlpha alpha, const ReadOptions& options);

/// Pulls `image` (1 or 3 color bands, optional alpha; 8 or 16 bits or float) through once, strip by strip, and
/// turns it upright on the way: no second copy of the picture is made. `space` is that of codes; `orientation` is the
/// EXIF number; `alpha` says what the pixels are if one of them is transparent. With `acceptsPart` it is pulled row by
/// row, and is complete when the first few are there. Throws std::bad_alloc when the bitmap has no room.
SinkResult pullIntoBitmap(
    VipsImage* image, CIColorSpace space, int orientation, CIAlpha alpha, const ReadOptions&, bool acceptsPart = false);

} // namespace imageio
