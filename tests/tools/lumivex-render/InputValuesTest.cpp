#include "tools/lumivex-render/InputValues.h"

#include "tools/lumivex-render/Arguments.h"

#include <gmock/gmock.h>

namespace {

using ::testing::HasSubstr;
using ::testing::ThrowsMessage;

CIInputAttributes input(const std::string& className, CIValue standard = {})
{
    CIInputAttributes attributes;
    attributes.key = "inputThing";
    attributes.className = className;
    attributes.defaultValue = std::move(standard);
    return attributes;
}

TEST(InputValues, AreReadByTheClassOfTheInput)
{
    EXPECT_EQ(inputValue(input("NSNumber"), "-1.5e2"), CIValue(-150.0));
    EXPECT_EQ(inputValue(input("CIVector", CIVector{0, 0}), "150, -2"), CIValue(CIVector{150, -2}));
    EXPECT_EQ(inputValue(input("CIVector"), "1,2,3"), CIValue(CIVector{1, 2, 3}));
    EXPECT_EQ(inputValue(input("CIColor"), "1,0,0.25,0.5"), CIValue(CIColor(1, 0, 0.25, 0.5)));
    EXPECT_EQ(inputValue(input("CIColor"), "1,0,0"), CIValue(CIColor(1, 0, 0, 1)));
    EXPECT_EQ(inputValue(input("CIColor"), "#ff003380"), CIValue(CIColor(1, 0, 0.2, 128.0 / 255)));
    EXPECT_EQ(inputValue(input("CIColor"), "#FF0033"), CIValue(CIColor(1, 0, 0.2, 1)));
    EXPECT_EQ(inputValue(input("NSAffineTransform"), "1,2,3,4,5,6"), CIValue(CIAffineTransform{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(inputValue(input("NSString"), "1,2 äö="), CIValue("1,2 äö="));
    EXPECT_EQ(inputValue(input("NSData"), "ab"), CIValue(CIData{std::byte('a'), std::byte('b')}));
}

TEST(InputValues, RefuseWhatDoesNotFit)
{
    const std::pair<CIInputAttributes, const char*> unfit[] = {{input("NSNumber"), ""}, {input("NSNumber"), "1,2"},
        {input("NSNumber"), "10px"}, {input("NSNumber"), "nan"}, {input("NSNumber"), "inf"},
        {input("CIVector", CIVector{0, 0}), "1"}, {input("CIVector"), "1,,2"}, {input("CIVector"), "1,2,"},
        {input("CIColor"), "1,2"}, {input("CIColor"), "#12345"}, {input("CIColor"), "#gg0000"},
        {input("CIColor"), "#-1000000"}, {input("NSAffineTransform"), "1"}};
    for (const auto& [attributes, text] : unfit)
        EXPECT_THAT(
            [&] { (void)inputValue(attributes, text); }, ThrowsMessage<UsageError>(HasSubstr("inputThing needs")))
            << attributes.className << " from '" << text << "'";
    EXPECT_THAT([] { (void)inputValue(input("CIImage"), "x.png"); }, ThrowsMessage<UsageError>(HasSubstr("--image")));
}

} // namespace
