#include "app/document/Printing.h"

#include "app/document/Document.h"
#include "files/PictureMessages.h"
#include "files/PlainPicture.h"
#include "platform/chain/Baking.h"

#include <memory>

#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

void Printing::run()
{
    if (!m_document.isIdle() || !m_document.picture())
        return;
    const auto make = [picture = m_finished(), context = m_document.context(),
                          format = storedLike(m_document.picture(), m_document.format())](WorkControl& control) {
        const CIImage finished = picture ? picture(&control.rendering) : CIImage();
        return screenPicture(renderedBitmap(*context, finished, format, &control.rendering));
    };
    m_document.work(
        {.title = tr("Drawing the picture…")}, make, [this](const std::optional<QImage>& picture, bool isCancelled) {
            if (picture && !picture->isNull())
                showPanel(*picture);
            else if (!isCancelled)
                emit m_document.message(tr("There was not enough memory to print the picture"));
        });
}

void Printing::showPanel(const QImage& picture)
{
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    const QString name = QFileInfo(m_document.filePath()).completeBaseName();
    printer->setDocName(name.isEmpty() ? tr("Picture") : name);
    printer->setPageOrientation(picture.width() > picture.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    auto* panel = new QPrintDialog(printer.get(), m_window);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(tr("Print"));
    panel->setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    QObject::connect(panel, &QDialog::accepted, &m_document, [this, printer, picture] { print(*printer, picture); });
    panel->open();
}

/// In the middle of the page, in its own proportions; what is transparent is paper.
void Printing::print(QPrinter& printer, const QImage& picture)
{
    QPainter painter;
    if (!painter.begin(&printer)) {
        emit m_document.message(tr("The picture can't be printed there"));
        return;
    }
    const QRectF page(QPointF(), printer.pageLayout().paintRectPixels(printer.resolution()).size());
    QRectF place({}, QSizeF(picture.size()).scaled(page.size(), Qt::KeepAspectRatio));
    place.moveCenter(page.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture);
    painter.end();
    emit m_document.message(tr("Printed “%1”").arg(printer.docName()));
}
