// What a failure is called in the user's language.
#pragma once

#include "platform/imageio/Failure.h"

#include <QString>

QString shownText(const Failure& failure);
