#include "platform/quartz/TextRenderer.h"

#include <QImage>
#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>

#include <cmath>

namespace {

constexpr double kMostPixels = 64e6;

QTextCharFormat formatOf(const CITextRun& run)
{
    QTextCharFormat format;
    format.setFontFamilies({QString::fromStdString(run.fontName)});
    format.setProperty(QTextFormat::FontPixelSize, std::max(1, int(std::lround(run.fontSize))));
    const CIColor& c = run.color;
    format.setForeground(QColor::fromRgbF(float(c.red()), float(c.green()), float(c.blue()), float(c.alpha())));
    return format;
}

} // namespace

CIBitmap TextRenderer::render(const CIText& text) const
{
    QTextDocument document;
    document.setDocumentMargin(0);
    QTextCursor cursor(&document);
    for (const CITextRun& run : text.runs)
        cursor.insertText(QString::fromStdString(run.text), formatOf(run));
    const QSizeF size = document.size() * text.scale;
    const double width = std::ceil(size.width()) + 2 * text.padding,
                 height = std::ceil(size.height()) + 2 * text.padding;
    if (document.isEmpty() || width < 1 || height < 1 || width * height > kMostPixels)
        return {};
    CIBitmap bitmap(int(width), int(height), CIFormat::BGRA8, CIAlpha::Premultiplied, CIColorSpace::SRGB);
    QImage image(reinterpret_cast<uchar*>(bitmap.mutableRow(0)), bitmap.width(), bitmap.height(),
        qsizetype(bitmap.bytesPerRow()), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(text.padding, text.padding);
    painter.scale(text.scale, text.scale);
    document.drawContents(&painter);
    return bitmap;
}
