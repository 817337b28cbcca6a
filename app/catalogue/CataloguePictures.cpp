#include "app/catalogue/CataloguePictures.h"

#include "app/catalogue/Thumbnail.h"
#include "platform/chain/Effect.h"

#include <algorithm>

namespace {

constexpr int kPixelsPerPoint = 2;
constexpr int kPause = 100; // ms: who drags a slider or opens a picture is to have all cores

/// The middle of the picture in a thumbnail's shape.
CIRect middleOf(const CIRect& r)
{
    constexpr double kShape = double(CataloguePictures::kSize.width()) / CataloguePictures::kSize.height();
    const double width = std::min(r.width, r.height * kShape), height = width / kShape;
    return {r.x + (r.width - width) / 2, r.y + (r.height - height) / 2, width, height};
}

CIBitmap smallBitmap(const CIImage& image, const CIRect& area)
{
    const double scale = std::min(1.0, CataloguePictures::kSize.width() * kPixelsPerPoint / area.width);
    return image ? CIContext().render(image, area, scale, CIFormat::RGBA8, CIAlpha::Premultiplied) : CIBitmap();
}

} // namespace

CataloguePictures::CataloguePictures(Recipe recipe, Recipe otherwise, QObject* parent)
    : QObject(parent)
    , m_recipe(std::move(recipe))
    , m_otherwise(std::move(otherwise))
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &CataloguePictures::makeNext);
}

void CataloguePictures::setPicture(const CIImage& picture)
{
    ++m_generation;
    const CIRect extent = picture.extent();
    m_picture = extent.isEmpty() || extent.isInfinite() ? CIImage() : picture;
    m_small = std::make_shared<CIBitmap>();
    m_made.clear();
    m_wanted.clear();
    emit pictureReady(); // what is shown is out of date
}

QImage CataloguePictures::pictureFor(const QString& filterName)
{
    const auto made = m_made.constFind(filterName);
    if (made != m_made.cend())
        return *made;
    if (!m_picture.isNull()) {
        m_wanted.removeOne(filterName);
        m_wanted.append(filterName);
        if (!m_isWorking && !m_pause.isActive())
            m_pause.start(kPause);
    }
    return {};
}

void CataloguePictures::makeNext()
{
    if (m_isWorking || m_wanted.isEmpty())
        return;
    m_isWorking = true;
    const QString name = m_wanted.takeLast();
    const CIImage image = m_recipe(name, m_picture), otherwise = m_otherwise ? m_otherwise(name, m_picture) : CIImage();
    m_worker.begin([=, this, generation = m_generation, picture = m_picture, small = m_small] {
        const CIRect area = middleOf(picture.extent());
        if (small->isNull())
            *small = smallBitmap(picture, area);
        CIBitmap made = smallBitmap(image, area);
        if (otherwise && !effectOf(*small, made).tells())
            if (CIBitmap other = smallBitmap(otherwise, area);
                effectOf(*small, other).tells() || effectOf(*small, other).changed > effectOf(*small, made).changed)
                made = std::move(other);
        const QImage thumbnail = thumbnailOf(made, kSize, kPixelsPerPoint);
        QMetaObject::invokeMethod(this, [=, this] { finish(generation, name, thumbnail); });
    });
}

void CataloguePictures::finish(int generation, const QString& filterName, const QImage& image)
{
    m_isWorking = false;
    if (generation == m_generation) {
        m_made.insert(filterName, image);
        emit pictureReady();
    }
    makeNext();
}
