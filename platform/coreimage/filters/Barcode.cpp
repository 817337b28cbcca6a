// Barcodes, encoded by libzint: one picture pixel for each module, black on white, opaque.
#include "platform/coreimage/kernel/PointwiseFilter.h"

#include <algorithm>
#include <zint.h>

namespace ci {
namespace {

struct Release {
    void operator()(zint_symbol* symbol) const { ZBarcode_Delete(symbol); }
};
using Symbol = std::unique_ptr<zint_symbol, Release>;

/// The message's bytes; text counts as UTF-8.
std::vector<unsigned char> message(const Values& in)
{
    const CIValue& value = in.value("inputMessage");
    std::vector<unsigned char> bytes;
    if (value.isString())
        for (const char c : value.toString())
            bytes.push_back(static_cast<unsigned char>(c));
    for (const std::byte b : value.toData())
        bytes.push_back(std::to_integer<unsigned char>(b));
    return bytes;
}

/// Null for an empty message, and for one that the code can't hold.
bool encode(const Symbol& symbol, const std::vector<unsigned char>& bytes)
{
    constexpr std::size_t kLongest = 10000; // more than any of the codes can hold
    if (!symbol || bytes.empty() || bytes.size() > kLongest)
        return false;
    return ZBarcode_Encode(symbol.get(), bytes.data(), int(bytes.size())) < ZINT_ERROR;
}

bool isBlack(const zint_symbol& symbol, int x, int y) { return (symbol.encoded_data[y][x / 8] >> (x % 8)) & 1; }

/// The modules on a white ground that reaches `quiet` pixels beyond them. Each row of the symbol is `rowHeight` high.
CIImage drawn(const zint_symbol& symbol, int quiet, int rowHeight)
{
    CIBitmap bitmap(symbol.width + 2 * quiet, symbol.rows * rowHeight + 2 * quiet, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int y = 0; y < bitmap.height(); ++y) {
        const auto row = bitmap.mutableRow<std::uint8_t>(y);
        std::ranges::fill(row, std::uint8_t(255));
        if (y < quiet || y >= bitmap.height() - quiet)
            continue;
        for (int x = 0; x < symbol.width; ++x)
            if (isBlack(symbol, x, (y - quiet) / rowHeight))
                std::fill_n(row.begin() + 4 * (x + quiet), 3, std::uint8_t(0));
    }
    return CIImage::fromBitmap(bitmap);
}

Symbol symbolOf(int symbology)
{
    Symbol symbol(ZBarcode_Create());
    if (symbol) {
        symbol->symbology = symbology;
        symbol->input_mode = DATA_MODE;
    }
    return symbol;
}

CIInputAttributes messageInput() { return fitted(object("inputMessage", "Message", InputKind::Data), "Lumivex"); }

Declaration barcode(std::string name, std::string displayName, unsigned usage, std::vector<CIInputAttributes> inputs)
{
    return {.name = std::move(name),
        .displayName = std::move(displayName),
        .category = kCICategoryGenerator,
        .usage = usage,
        .inputs = std::move(inputs),
        .boundToPixelGrid = true};
}

/// In byte mode; the quiet zone is one module.
const RecipeFilter qrCodeGenerator{
    barcode("CIQRCodeGenerator", "QR Code Generator", StillOnly,
        {messageInput(), object("inputCorrectionLevel", "Correction Level", InputKind::String, "M")}),
    [](const Values& in) {
        const Symbol symbol = symbolOf(BARCODE_QRCODE);
        const std::string levels = "LMQH", level = in.value("inputCorrectionLevel").toString();
        const std::size_t found = level.empty() ? std::string::npos : levels.find(level[0]);
        if (symbol)
            symbol->option_1 = found == std::string::npos ? 2 : int(found) + 1;
        return encode(symbol, message(in)) ? drawn(*symbol, 1, 1) : CIImage();
    }};

/// The quiet zone is two modules. The correction level is the least share of the symbol, in percent, that is spent on
/// correction; without a number of layers the smallest symbol is taken.
const RecipeFilter aztecCodeGenerator{
    barcode("CIAztecCodeGenerator", "Aztec Code Generator", StillOnly,
        {messageInput(),
            integer("inputCorrectionLevel", "Correction Level",
                {.standard = 23, .min = 5, .max = 95, .sliderMin = 5, .sliderMax = 95}),
            integer("inputLayers", "Layers", {.min = 1, .max = 32, .sliderMin = 1, .sliderMax = 32}),
            boolean("inputCompactStyle", "Compact Style", false)}),
    [](const Values& in) {
        const double percent = in.number("inputCorrectionLevel");
        const int layers = in.has("inputLayers") ? int(in.number("inputLayers")) : 0;
        const std::vector<unsigned char> bytes = message(in);
        // The encoder counts compact symbols of 1 to 4 layers as sizes 1 to 4, full ones of 1 to 32 as 5 to 36.
        std::vector<int> sizes;
        if (in.flag("inputCompactStyle")) {
            for (int n = layers ? std::min(layers, 4) : 1; n <= (layers ? std::min(layers, 4) : 4); ++n)
                sizes.push_back(n);
        } else {
            sizes.push_back(layers ? layers + 4 : 0);
        }
        for (const int size : sizes) {
            const Symbol symbol = symbolOf(BARCODE_AZTEC);
            if (!symbol)
                break;
            if (size > 0)
                symbol->option_2 = size;
            else
                symbol->option_1 = percent < 17 ? 1 : percent < 30 ? 2 : percent < 43 ? 3 : 4;
            if (encode(symbol, bytes))
                return drawn(*symbol, 2, 1);
        }
        return CIImage();
    }};

/// Rows are three modules high, the quiet zone is two modules. Limits of the size choose among numbers of columns;
/// those that no number meets are ignored.
const RecipeFilter pdf417BarcodeGenerator{
    barcode("CIPDF417BarcodeGenerator", "PDF417 Barcode Generator", Video,
        {messageInput(),
            integer("inputMinWidth", "Min Width", {.min = 56, .max = 583, .sliderMin = 56, .sliderMax = 583}),
            integer("inputMaxWidth", "Max Width", {.min = 56, .max = 583, .sliderMin = 56, .sliderMax = 583}),
            integer("inputMinHeight", "Min Height", {.min = 13, .max = 283, .sliderMin = 13, .sliderMax = 283}),
            integer("inputMaxHeight", "Max Height", {.min = 13, .max = 283, .sliderMin = 13, .sliderMax = 283}),
            integer("inputDataColumns", "Data Columns", {.min = 1, .max = 30, .sliderMin = 1, .sliderMax = 30}),
            integer("inputRows", "Rows", {.min = 3, .max = 90, .sliderMin = 3, .sliderMax = 90}),
            number(
                "inputPreferredAspectRatio", "Preferred Aspect Ratio", InputKind::Number, {.min = 0, .sliderMin = 0}),
            integer("inputCompactionMode", "Compaction Mode", {.min = 0, .max = 3, .sliderMin = 0, .sliderMax = 3}),
            boolean("inputCompactStyle", "Compact Style", false),
            integer("inputCorrectionLevel", "Correction Level", {.min = 0, .max = 8, .sliderMin = 0, .sliderMax = 8}),
            boolean("inputAlwaysSpecifyCompaction", "Always Specify Compaction", false)}),
    [](const Values& in) {
        constexpr int kQuiet = 2, kRowHeight = 3;
        const std::vector<unsigned char> bytes = message(in);
        const auto wanted = [&](const char* key, double otherwise) { return in.has(key) ? in.number(key) : otherwise; };
        const double preferred = std::max(wanted("inputPreferredAspectRatio", 3), 0.05); // width to height
        const auto tried = [&](int columns) {
            Symbol symbol = symbolOf(in.flag("inputCompactStyle") ? BARCODE_PDF417COMP : BARCODE_PDF417);
            if (!symbol)
                return Symbol();
            if (in.has("inputCorrectionLevel"))
                symbol->option_1 = int(in.number("inputCorrectionLevel"));
            if (in.has("inputRows"))
                symbol->option_3 = int(in.number("inputRows"));
            symbol->option_2 = columns;
            return encode(symbol, bytes) ? std::move(symbol) : Symbol();
        };
        const auto violated = [&](const zint_symbol& symbol) {
            const int width = symbol.width + 2 * kQuiet, height = symbol.rows * kRowHeight + 2 * kQuiet;
            return (width < wanted("inputMinWidth", 0)) + (width > wanted("inputMaxWidth", 1e9))
                + (height < wanted("inputMinHeight", 0)) + (height > wanted("inputMaxHeight", 1e9));
        };
        Symbol best;
        double nearest = 1e9;
        const int given = in.has("inputDataColumns") ? int(in.number("inputDataColumns")) : 0;
        for (int columns = given ? given : 1; columns <= (given ? given : 30); ++columns)
            if (Symbol symbol = tried(columns)) {
                const double ratio = double(symbol->width) / (symbol->rows * kRowHeight);
                const double off = std::abs(std::log(ratio / preferred)) + 1e3 * violated(*symbol);
                if (off < nearest)
                    nearest = off, best = std::move(symbol);
            }
        return best ? drawn(*best, kQuiet, kRowHeight) : CIImage();
    }};

/// Code set B throughout, with the quiet space on all four sides.
const RecipeFilter code128BarcodeGenerator{
    barcode("CICode128BarcodeGenerator", "Code 128 Barcode Generator", StillOnly,
        {messageInput(),
            integer("inputQuietSpace", "Quiet Space",
                {.standard = 10, .min = 0, .max = 100, .sliderMin = 0, .sliderMax = 20}),
            integer("inputBarcodeHeight", "Barcode Height",
                {.standard = 32, .min = 1, .max = 500, .sliderMin = 1, .sliderMax = 50})}),
    [](const Values& in) {
        const Symbol symbol = symbolOf(BARCODE_CODE128B);
        if (!encode(symbol, message(in)))
            return CIImage();
        return drawn(*symbol, int(in.number("inputQuietSpace")), int(in.number("inputBarcodeHeight")));
    }};

} // namespace
} // namespace ci
