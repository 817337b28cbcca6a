#include "platform/foundation/TintedIcon.h"

#include "platform/foundation/Appearance.h"
#include "platform/foundation/ResourcePaths.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {

QColor colorOf(IconTint tint, QIcon::Mode mode, QIcon::State state)
{
    const Look& look = Appearance::shared().look();
    if (mode == QIcon::Disabled)
        return look.disabledText;
    if (tint == IconTint::OnAccent || state == QIcon::On || mode == QIcon::Selected)
        return look.accentText;
    return tint == IconTint::Accent ? look.accentMark : look.text;
}

class TintedIconEngine : public QIconEngine {
public:
    TintedIconEngine(QString file, IconTint tint)
        : m_file(std::move(file))
        , m_tint(tint)
    {
    }

    QIconEngine* clone() const override { return new TintedIconEngine(m_file, m_tint); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal scale = painter->device()->devicePixelRatioF();
        QPixmap drawn = pixmap(rect.size() * scale, mode, state);
        painter->drawPixmap(rect, drawn);
    }

    /// `size` is in device pixels.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const QColor color = colorOf(m_tint, mode, state);
        const QString key =
            QStringLiteral("lumivex %1 %2 %3 %4").arg(m_file, color.name()).arg(size.width()).arg(size.height());
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap))
            return pixmap;
        pixmap = QPixmap(size);
        pixmap.fill(Qt::transparent);
        QSvgRenderer renderer(m_file);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn); // keeps the shape, changes the color
        painter.fillRect(pixmap.rect(), color);
        painter.end();
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        QPixmap drawn = pixmap(size, mode, state);
        drawn.setDevicePixelRatio(scale);
        return drawn;
    }

private:
    QString m_file;
    IconTint m_tint;
};

} // namespace

QIcon tintedIcon(const QString& name, IconTint tint)
{
    QString file = QStringLiteral(":/icons/%1.svg").arg(name);
    if (!QFile::exists(file))
        file = pathForResource(name, QStringLiteral("svg"));
    return file.isEmpty() ? QIcon() : QIcon(new TintedIconEngine(file, tint));
}
