// filter_pages DOCS-FOLDER: every filter of the catalogue on the picture that the window starts with, with values that
// fit it, on one sheet (contact_sheet.jpg), and one line for each in the table at the end of filters.md.
#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "platform/chain/FilterWords.h"
#include "platform/coreimage/CIFilter.h"
#include "platform/foundation/Appearance.h"
#include "platform/quartz/TextRenderer.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QSaveFile>
#include <QTextStream>

#include <cstdio>

namespace {

constexpr int kColumns = 11, kWidth = 168, kHeight = 126, kCaption = 18, kGap = 8;
const QString kTableStart = QStringLiteral("<!-- made by tools/filter_pages -->\n");

/// As the view would draw it, the picture as large as a thumbnail.
QImage thumbnail(Controller& controller, const CIContext& context)
{
    const CIRect all = controller.getBgImageExtent();
    const double scale = kWidth / all.width;
    const CIBitmap bitmap =
        context.render(controller.coreImageResult(true), all, scale, CIFormat::BGRA8, CIAlpha::Opaque, nullptr);
    if (bitmap.isNull())
        return {};
    return QImage(reinterpret_cast<const uchar*>(bitmap.row(0)), bitmap.width(), bitmap.height(),
        qsizetype(bitmap.bytesPerRow()), QImage::Format_RGB32)
        .copy();
}

class Sheet {
public:
    explicit Sheet(int cells)
        : m_image(kColumns * (kWidth + kGap) + kGap,
            ((cells + kColumns - 1) / kColumns) * (kHeight + kCaption + kGap) + kGap, QImage::Format_RGB32)
    {
        m_image.fill(QColor(250, 250, 250));
    }
    void add(const QImage& picture, const QString& caption)
    {
        QPainter painter(&m_image);
        painter.translate(
            kGap + m_count % kColumns * (kWidth + kGap), kGap + m_count / kColumns * (kHeight + kCaption + kGap));
        ++m_count;
        painter.drawImage(QRect(0, 0, kWidth, kHeight), picture);
        QFont font = painter.font();
        font.setPixelSize(11);
        painter.setFont(font);
        painter.setPen(QColor(50, 50, 50));
        const QString shown = painter.fontMetrics().elidedText(caption, Qt::ElideRight, kWidth);
        painter.drawText(QRect(0, kHeight, kWidth, kCaption), Qt::AlignCenter, shown);
    }
    bool save(const QString& path) const { return m_image.save(path, "JPG", 82); }

private:
    QImage m_image;
    int m_count = 0;
};

QString tableLine(const QString& className)
{
    const auto filter = CIFilter::filterWithName(className.toStdString());
    QStringList inputs;
    for (const std::string& key : filter->inputKeys())
        inputs << QString::fromStdString(key).mid(int(std::string_view("input").size()));
    const FilterWords* words = filterWords(className.toStdString());
    return QStringLiteral("| `%1` | %2 | %3 | %4 |\n")
        .arg(className, QString::fromStdString(CIFilter::localizedNameForFilterName(className.toStdString())),
            words ? QString::fromStdString(words->description) : QString(), inputs.join(QStringLiteral(", ")));
}

bool writeTable(const QString& path, const QString& table)
{
    QFile old(path);
    if (!old.open(QIODevice::ReadOnly))
        return false;
    const QString text = QString::fromUtf8(old.readAll());
    const qsizetype start = text.indexOf(kTableStart);
    QSaveFile file(path);
    if (start < 0 || !file.open(QIODevice::WriteOnly))
        return false;
    file.write((text.first(start) + kTableStart + table).toUtf8());
    return file.commit();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (application.arguments().size() != 2) {
        std::fputs("usage: filter_pages DOCS-FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(application.arguments().at(1));
    CITextRenderer::install(std::make_shared<TextRenderer>());
    Appearance::shared().dressApplication();
    MainWindow window;
    window.resize(1400, 900);
    Controller controller(window);
    controller.awakeFromNib();
    window.show();
    QApplication::processEvents();

    const DataSource source;
    int rows = 0;
    for (const auto& group : source.groups())
        rows += int(group->rows.size());
    const CIContext context;
    Sheet sheet(rows);
    QString table;
    for (const auto& group : source.groups()) {
        table += QStringLiteral("\n### %1\n\n| filter | name | what it does | inputs |\n|---|---|---|---|\n")
                     .arg(group->label);
        for (const auto& row : group->rows) {
            controller.addFilterIndex(row->className, 0);
            controller.fitInputs();
            sheet.add(thumbnail(controller, context), row->name);
            table += tableLine(row->className);
        }
    }
    const bool written = sheet.save(folder.filePath(QStringLiteral("contact_sheet.jpg")))
        && writeTable(folder.filePath(QStringLiteral("filters.md")), table);
    if (!written)
        std::fputs("The pages could not be written.\n", stderr);
    return written ? 0 : 1;
}
