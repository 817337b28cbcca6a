// OpenGL 2.1 and GLU, wherever the system keeps their headers.
#pragma once

#include <qopengl.h>
#ifdef Q_OS_MACOS
#    include <OpenGL/glu.h>
#else
#    include <GL/glu.h>
#endif
