// Pictures of text, painted by whichever text renderer is installed.
#include "platform/coreimage/CITextRenderer.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

#include <algorithm>

namespace ci {
namespace {

CIImage painted(const Values& in, std::vector<CITextRun> runs)
{
    std::erase_if(runs, [](const CITextRun& run) { return run.text.empty() || run.fontSize <= 0; });
    const auto renderer = CITextRenderer::installed();
    const double scale = in.number("inputScaleFactor");
    if (!renderer || runs.empty() || scale <= 0)
        return {};
    // Beyond these limits no picture could hold the text.
    for (CITextRun& run : runs)
        run.fontSize = std::min(run.fontSize, 4096.0);
    const CIBitmap bitmap = renderer->render({std::move(runs), std::min(scale, 64.0), int(in.number("inputPadding"))});
    return bitmap.isNull() ? CIImage() : CIImage::fromBitmap(bitmap);
}

CIInputAttributes scaleFactor()
{
    return fitted(scalar("inputScaleFactor", "Scale Factor", {.standard = 1, .min = 0, .sliderMin = 1, .sliderMax = 4}),
        6, Meaning::Length);
}
CIInputAttributes padding() { return integer("inputPadding", "Padding", {.standard = 0, .min = 0, .max = 200}); }

const RecipeFilter textImageGenerator{
    {.name = "CITextImageGenerator",
        .displayName = "Text Image Generator",
        .category = kCICategoryGenerator,
        .usage = Video,
        .inputs = {fitted(object("inputText", "Text", InputKind::String), "Lumivex"),
            object("inputFontName", "Font Name", InputKind::String, "HelveticaNeue"),
            scalar("inputFontSize", "Font Size", {.standard = 12, .min = 0, .sliderMin = 9, .sliderMax = 128}),
            scaleFactor(), padding()},
        .boundToPixelGrid = true},
    [](const Values& in) {
        return painted(in,
            {{.text = in.value("inputText").toString(),
                .fontName = in.value("inputFontName").toString(),
                .fontSize = in.number("inputFontSize")}});
    }};

/// One stretch of attributed text: plain text, or a dictionary of text, fontName, fontSize and color.
CITextRun run(const CIValue& value)
{
    CITextRun made{.text = value.toString(), .fontName = "HelveticaNeue"};
    for (const auto& [key, attribute] : value.toDictionary()) {
        if (key == "text")
            made.text = attribute.toString();
        else if (key == "fontName")
            made.fontName = attribute.toString();
        else if (key == "fontSize")
            made.fontSize = attribute.toDouble();
        else if (key == "color")
            made.color = attribute.toColor();
    }
    return made;
}

const RecipeFilter attributedTextImageGenerator{
    {.name = "CIAttributedTextImageGenerator",
        .displayName = "Attributed Text Image Generator",
        .category = kCICategoryGenerator,
        .usage = Video,
        .inputs = {fitted(object("inputText", "Text", InputKind::AttributedString), "Lumivex"), scaleFactor(),
            padding()},
        .boundToPixelGrid = true},
    [](const Values& in) {
        const CIValue& text = in.value("inputText");
        std::vector<CITextRun> runs;
        if (text.isArray())
            for (const CIValue& part : text.toArray())
                runs.push_back(run(part));
        else
            runs.push_back(run(text));
        return painted(in, std::move(runs));
    }};

} // namespace
} // namespace ci
