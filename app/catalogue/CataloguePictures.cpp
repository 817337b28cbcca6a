#include "app/catalogue/CataloguePictures.h"

#include "app/document/Alone.h"
#include "platform/coreimage/CIContext.h"

#include <QThread>

#include <algorithm>

namespace {

constexpr int kSmallSide = 400; // px: at full size, most filters would do nothing that is seen in a thumbnail
constexpr int kPause = 100; // ms: who drags a slider or opens a picture is to have all cores
constexpr qsizetype kMostWanted = 40; // what was scrolled by is made when it is seen again

/// The middle of the picture in a thumbnail's shape.
CIRect middleOf(const CIRect& r)
{
    const double shape = double(kFavouriteThumbnail.width()) / kFavouriteThumbnail.height();
    const double width = std::min(r.width, r.height * shape), height = width / shape;
    return {r.x + (r.width - width) / 2, r.y + (r.height - height) / 2, width, height};
}

CIImage smallPicture(const CIImage& picture)
{
    const CIRect all = picture.extent();
    if (picture.isNull() || all.isEmpty() || all.isInfinite())
        return {};
    const CIRect middle = middleOf(all);
    const double scale = std::min(1.0, kSmallSide / middle.width);
    const CIBitmap bitmap = CIContext().render(picture, middle, scale);
    return bitmap.isNull() ? CIImage() : CIImage::fromBitmap(bitmap);
}

} // namespace

/// Runs one job at a time.
class CataloguePictures::Worker : public QThread {
public:
    ~Worker() override { wait(); }
    void begin(std::function<void()> job)
    {
        wait();
        m_job = std::move(job);
        start(QThread::IdlePriority);
    }

private:
    void run() override { runAlone(m_job); }
    std::function<void()> m_job;
};

CataloguePictures::CataloguePictures(Recipe recipe, QObject* parent)
    : QObject(parent)
    , m_recipe(std::move(recipe))
    , m_worker(std::make_unique<Worker>())
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &CataloguePictures::makeNext);
}

CataloguePictures::~CataloguePictures() = default;

void CataloguePictures::setPicture(const CIImage& picture)
{
    ++m_generation;
    m_picture = picture;
    m_small = {};
    m_made.clear();
    m_wanted.clear();
    emit pictureReady(); // what is shown is out of date
}

QImage CataloguePictures::pictureFor(const QString& filterName)
{
    const auto made = m_made.constFind(filterName);
    if (made != m_made.cend())
        return *made;
    if (!m_picture.isNull() && !m_wanted.contains(filterName)) {
        m_wanted.append(filterName);
        while (m_wanted.size() > kMostWanted)
            m_wanted.removeFirst();
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
    const int generation = m_generation;
    if (m_small.isNull()) {
        m_worker->begin([this, generation, picture = m_picture] {
            QMetaObject::invokeMethod(this, [this, generation, made = smallPicture(picture)] {
                m_isWorking = false;
                if (generation == m_generation && !made.isNull())
                    m_small = made;
                else if (generation == m_generation)
                    m_picture = {}; // there is nothing to show
                makeNext();
            });
        });
        return;
    }
    const QString name = m_wanted.takeFirst();
    const CIRect shown = m_small.extent();
    m_worker->begin([this, generation, name, image = m_recipe(name, m_small).cropped(shown)] {
        const QImage picture = favouriteThumbnail(image);
        QMetaObject::invokeMethod(this, [=, this] { finish(generation, name, picture); });
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
