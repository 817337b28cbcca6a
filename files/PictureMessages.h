// What platform/imageio says about failures, in the user's language.
#pragma once

#include <string>

#include <QString>

/// A message that is not among the known ones stays as it is.
QString shownPictureMessage(const std::string& message);
