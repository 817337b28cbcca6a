#pragma once

#include "tools/make_pictures/landscape/Canvas.h"
#include "tools/make_pictures/landscape/View.h"

/// The grassy bank that the viewer stands on, with its flowers, over whatever the canvas shows already.
void drawMeadow(Canvas& canvas, const View& view);
