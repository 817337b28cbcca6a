// How undo steps are called.
#pragma once

#include <QString>

class CIFilter;

/// The words of a key: a blank before every capital and every digit but the first character, one by one
/// ("ShadingImage" becomes "Shading Image", "Point12" becomes "Point 1 2"). Nothing is lower-cased.
QString unInterCap1(const QString& key);

/// "Change to Gaussian Blur Radius" for "inputRadius" of that filter. The first five characters of the key are
/// dropped, whatever they are.
QString actionNameForFilterKey(const CIFilter& filter, const QString& key);
