// How undo steps are called.
#pragma once

#include <QString>

class CIFilter;

/// The words of a key, as captions have them: see wordsOfKey.
QString unInterCap1(const QString& key);

/// "Change to Gaussian Blur Radius" for "inputRadius" of that filter. The first five characters of the key are
/// dropped, whatever they are.
QString actionNameForFilterKey(const CIFilter& filter, const QString& key);
