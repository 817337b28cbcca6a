// What tests of readers share.
#pragma once

#include "platform/imageio/PictureReader.h"
#include "tests/imageio/PictureFiles.h"

#include <gmock/gmock.h>
#include <lcms2.h>

using Pixel = std::array<double, 4>;

inline CIBitmap read(const Bytes& file, const ReadOptions& options = {})
{
    const Result<CIBitmap> result = readPicture(file, options);
    EXPECT_TRUE(result) << result.message();
    return result ? *result : CIBitmap(1, 1);
}

inline void expectNear(const Pixel& actual, const Pixel& expected, double tolerance)
{
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(actual[i], expected[i], tolerance) << "component " << i;
}

/// Closes the profile.
inline Bytes savedProfile(cmsHPROFILE profile)
{
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    Bytes bytes(size);
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsCloseProfile(profile);
    return bytes;
}
