#include "app/catalogue/LooksPopup.h"

#include "platform/chain/FilterChain.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>

namespace {

constexpr int kColumns = 3;
constexpr QSize kPicture = CataloguePictures::kSize, kCell(124, 96); // points

CIImage lookOf(const QString& name, const CIImage& picture)
{
    const PictureLook* look = lookNamed(name.toStdString());
    const std::shared_ptr<CIFilter> filter = look ? CIFilter::filterWithName(look->filter) : nullptr;
    if (!filter)
        return {};
    filter->setDefaults();
    applySettings(settingsOf(*look, picture), *filter);
    return filteredPicture(*filter, picture, {picture.extent().width, picture.extent().height});
}

} // namespace

LooksPopup::LooksPopup(QWidget* parent)
    : QListWidget(parent)
    , m_pictures(lookOf)
{
    setWindowFlag(Qt::Popup);
    setAccessibleName(tr("Looks"));
    setViewMode(IconMode);
    setMovement(Static);
    setUniformItemSizes(true);
    setIconSize(kPicture);
    setGridSize(kCell);
    setWordWrap(true);
    setSpacing(0);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    for (const PictureLook& look : looks()) {
        auto* item = new QListWidgetItem(shownLookText(look.name), this);
        item->setData(Qt::UserRole, QString::fromLatin1(look.name));
        item->setToolTip(shownLookText(look.description));
        item->setTextAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
    const int rows = (count() + kColumns - 1) / kColumns, frame = 2 * frameWidth() + 4;
    setFixedSize(kColumns * kCell.width() + frame, rows * kCell.height() + frame);
    connect(&m_pictures, &CataloguePictures::pictureReady, this, &LooksPopup::showPictures);
    connect(this, &QListWidget::itemEntered, this, [this](QListWidgetItem* item) { setCurrentItem(item); });
}

void LooksPopup::popUp(const QWidget& button, const CIImage& picture)
{
    if (!picture.isSameAs(m_picture)) {
        m_picture = picture;
        m_pictures.setPicture(picture);
    }
    showPictures();
    const QRect room = button.screen()->availableGeometry();
    QPoint place = button.mapToGlobal(QPoint(0, -height() - 4));
    place.setX(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - width())));
    move(place.x(), std::max(room.top(), place.y()));
    setCurrentRow(0);
    show();
    setFocus();
}

void LooksPopup::showPictures()
{
    for (int i = 0; i < count(); ++i) {
        QImage picture = m_pictures.pictureFor(item(i)->data(Qt::UserRole).toString());
        if (picture.isNull()) { // its place
            picture = QImage(kPicture, QImage::Format_ARGB32_Premultiplied);
            picture.fill(palette().color(QPalette::Midlight));
        }
        picture.setDevicePixelRatio(1);
        item(i)->setIcon(QPixmap::fromImage(picture));
    }
}

void LooksPopup::take(const QListWidgetItem* item)
{
    if (!item)
        return;
    close();
    emit chosen(lookNamed(item->data(Qt::UserRole).toString().toStdString()));
}

void LooksPopup::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space)
        take(currentItem());
    else if (event->key() == Qt::Key_Escape)
        close();
    else
        QListWidget::keyPressEvent(event);
}

void LooksPopup::mouseReleaseEvent(QMouseEvent* event)
{
    QListWidget::mouseReleaseEvent(event);
    if (rect().contains(event->position().toPoint()))
        take(itemAt(event->position().toPoint()));
}
