#include "tools/lumivex-render/InputValues.h"

#include "tools/lumivex-render/Arguments.h"

#include <gmock/gmock.h>

namespace {

using ::testing::HasSubstr;
using ::testing::ThrowsMessage;

CIInputAttributes input(InputKind kind, CIValue standard = {})
{
    CIInputAttributes attributes;
    attributes.key = "inputThing";
    attributes.kind = kind;
    attributes.defaultValue = std::move(standard);
    return attributes;
}

TEST(InputValues, AreReadByTheKindOfTheInput)
{
    EXPECT_EQ(inputValue(input(InputKind::Number), "-1.5e2"), CIValue(-150.0));
    EXPECT_EQ(inputValue(input(InputKind::Vector, CIVector{0, 0}), "150, -2"), CIValue(CIVector{150, -2}));
    EXPECT_EQ(inputValue(input(InputKind::Vector), "1,2,3"), CIValue(CIVector{1, 2, 3}));
    EXPECT_EQ(inputValue(input(InputKind::Color), "1,0,0.25,0.5"), CIValue(CIColor(1, 0, 0.25, 0.5)));
    EXPECT_EQ(inputValue(input(InputKind::Color), "1,0,0"), CIValue(CIColor(1, 0, 0, 1)));
    EXPECT_EQ(inputValue(input(InputKind::Color), "#ff003380"), CIValue(CIColor(1, 0, 0.2, 128.0 / 255)));
    EXPECT_EQ(inputValue(input(InputKind::Color), "#FF0033"), CIValue(CIColor(1, 0, 0.2, 1)));
    EXPECT_EQ(inputValue(input(InputKind::Transform), "1,2,3,4,5,6"), CIValue(CIAffineTransform{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(inputValue(input(InputKind::String), "1,2 äö="), CIValue("1,2 äö="));
    EXPECT_EQ(inputValue(input(InputKind::Data), "ab"), CIValue(CIData{std::byte('a'), std::byte('b')}));
}

TEST(InputValues, RefuseWhatDoesNotFit)
{
    const std::pair<CIInputAttributes, const char*> unfit[] = {{input(InputKind::Number), ""},
        {input(InputKind::Number), "1,2"}, {input(InputKind::Number), "10px"}, {input(InputKind::Number), "nan"},
        {input(InputKind::Number), "inf"}, {input(InputKind::Vector, CIVector{0, 0}), "1"},
        {input(InputKind::Vector), "1,,2"}, {input(InputKind::Vector), "1,2,"}, {input(InputKind::Color), "1,2"},
        {input(InputKind::Color), "#12345"}, {input(InputKind::Color), "#gg0000"},
        {input(InputKind::Color), "#-1000000"}, {input(InputKind::Transform), "1"}};
    for (const auto& [attributes, text] : unfit)
        EXPECT_THAT(
            [&] { (void)inputValue(attributes, text); }, ThrowsMessage<UsageError>(HasSubstr("inputThing needs")))
            << int(attributes.kind) << " from '" << text << "'";
    EXPECT_THAT(
        [] { (void)inputValue(input(InputKind::Image), "x.png"); }, ThrowsMessage<UsageError>(HasSubstr("--image")));
}

} // namespace
