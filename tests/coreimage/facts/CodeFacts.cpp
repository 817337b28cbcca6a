// Barcodes and text. Black modules and where they lie are given by the symbologies.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

Fact printed(const char* filter, CIDictionary inputs, const CIRect& extent, const std::vector<Seen>& seen)
{
    return Fact{filter, std::move(inputs), seen}.reaching(extent).inPlace().atFullSize();
}

CIDictionary stacked(CIDictionary more = {})
{
    more.insert({{"inputMessage", bytes("Hello worlds")}, {"inputRows", 10}, {"inputDataColumns", 10},
        {"inputCorrectionLevel", 2}, {"inputCompactStyle", true}});
    return more;
}

} // namespace

Facts codes()
{
    // 17 for each codeword of start, indicator and data, a bar to stop, 2 px around; rows of 3 px.
    const CIRect symbol{0, 0, 17 * 12 + 1 + 4, 10 * 3 + 4};
    const std::vector<Seen> start{{{1.5, 17}, kWhite}, {{2.5, 17}, kBlack}, {{9.5, 17}, kBlack}, {{10.5, 17}, kWhite},
        {{11.5, 17}, kBlack}, {{5.5, 1.5}, kWhite}, {{5.5, 2.5}, kBlack}, {{206.5, 17}, kBlack}};
    return {
        // A finder in the upper left: black, white, three black, white, black.
        printed("CIQRCodeGenerator", {{"inputMessage", bytes("Hello world")}, {"inputCorrectionLevel", "L"}},
            {0, 0, 23, 23},
            {{{0.5, 18.5}, kWhite}, {{1.5, 18.5}, kBlack}, {{2.5, 18.5}, kWhite}, {{3.5, 18.5}, kBlack},
                {{5.5, 18.5}, kBlack}, {{6.5, 18.5}, kWhite}, {{7.5, 18.5}, kBlack}, {{8.5, 18.5}, kWhite}}),
        // High correction of as many bytes as the smallest symbol holds at the lowest takes the third size.
        printed("CIQRCodeGenerator", {{"inputMessage", bytes("Hello world12345")}, {"inputCorrectionLevel", "H"}},
            {0, 0, 31, 31}, {{{1.5, 1.5}, kBlack}}),
        printed("CIQRCodeGenerator", {{"inputMessage", bytes("Hello world12345")}}, {0, 0, 27, 27},
            {{{1.5, 1.5}, kBlack}}), // level M
        // Rings around the middle.
        printed("CIAztecCodeGenerator",
            {{"inputMessage", bytes("Hello world")}, {"inputCorrectionLevel", 10}, {"inputLayers", 2}}, {0, 0, 27, 27},
            {{{13.5, 13.5}, kBlack}, {{14.5, 13.5}, kWhite}, {{15.5, 13.5}, kBlack}, {{16.5, 13.5}, kWhite},
                {{0.5, 13.5}, kWhite}, {{1.5, 1.5}, kWhite}, {{13.5, 25.5}, kWhite}}),
        printed("CIAztecCodeGenerator", {{"inputMessage", bytes("Hi")}, {"inputCompactStyle", true}}, {0, 0, 19, 19},
            {{{9.5, 9.5}, kBlack}, {{10.5, 9.5}, kWhite}}),
        // The start pattern: eight black, one white, one black.
        printed("CIPDF417BarcodeGenerator", stacked(), symbol, start),
        printed("CIPDF417BarcodeGenerator", // what can't be met is ignored
            stacked({{"inputMinWidth", 300}, {"inputMinHeight", 100}, {"inputMaxHeight", 100},
                {"inputPreferredAspectRatio", 3}}),
            symbol, start),
        printed("CIPDF417BarcodeGenerator", {{"inputMessage", bytes("Hi")}, {"inputMaxWidth", 91}, {"inputRows", 20}},
            {0, 0, 17 * 5 + 1 + 4, 64}, {{{2.5, 17}, kBlack}}),
        // Start code B: two black, one white, one black, two white, one black.
        printed("CICode128BarcodeGenerator",
            {{"inputMessage", bytes("Hello world")}, {"inputQuietSpace", 20}, {"inputBarcodeHeight", 100}},
            {0, 0, 196, 140},
            {{{19.5, 70}, kWhite}, {{20.5, 70}, kBlack}, {{21.5, 70}, kBlack}, {{22.5, 70}, kWhite},
                {{23.5, 70}, kBlack}, {{25.5, 70}, kWhite}, {{26.5, 70}, kBlack}, {{20.5, 119.5}, kBlack},
                {{20.5, 120.5}, kWhite}}),
        // Painted by whoever is lent for it: here squares for letters.
        printed("CITextImageGenerator", {{"inputText", "four"}, {"inputScaleFactor", 2}, {"inputPadding", 3}},
            {0, 0, 102, 30}, {{{50.5, 15.5}, kBlack}, {{1.5, 1.5}, kNothing}}),
        printed("CITextImageGenerator", {{"inputText", "five"}, {"inputFontSize", 5}}, {0, 0, 20, 5},
            {{{3.5, 2.5}, kBlack}}),
        printed("CIAttributedTextImageGenerator",
            {{"inputText", CIArray{CIDictionary{{"text", "ab"}, {"fontSize", 10}, {"color", CIColor(1, 1, 1)}}, "c"}},
                {"inputScaleFactor", 2}},
            {0, 0, 64, 24}, {{{9.5, 9.5}, kWhite}}),
    };
}

} // namespace facts
