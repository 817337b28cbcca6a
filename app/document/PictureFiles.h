// Which files the open panel offers.
#pragma once

#include <QString>

/// Patterns of picture files for a file dialog, "*.jpg *.JPG …": some dialogs tell upper and lower case apart.
QString pictureFilePatterns();
