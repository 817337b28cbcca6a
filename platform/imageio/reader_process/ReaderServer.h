// The reading process's side.
#pragma once

#include "platform/imageio/PictureInput.h"
#include "platform/imageio/PictureReader.h"

namespace imageio {

inline constexpr int kReaderSocket = 3; // the descriptor that it finds open

using DecodePicture = Result<CIBitmap> (*)(const Result<PictureInput>&, const ReadOptions&);

/// Reads the file that it is handed over through the socket, and answers questions about it until nobody is there any
/// more. Before the first byte of the file is understood, the process gives up all rights that this doesn't need.
void serveReader(DecodePicture decode);

} // namespace imageio
