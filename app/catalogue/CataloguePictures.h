// What each filter makes of the open picture, small, for the list of filters.
#pragma once

#include "app/document/IdleThread.h"
#include "platform/coreimage/CIImage.h"

#include <QHash>
#include <QImage>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class CIBitmap;

/// Makes pictures when they are first asked for, one after the other, on a thread that runs only while the processor
/// has nothing else to do.
class CataloguePictures : public QObject {
    Q_OBJECT

public:
    static constexpr QSize kSize{96, 60}; // points
    /// Answers the recipe of a filter (by class name) over the picture; called in the main thread.
    using Recipe = std::function<CIImage(const QString& filterName, const CIImage& picture)>;

    /// `otherwise` is taken where the first recipe shows nothing.
    explicit CataloguePictures(Recipe recipe, Recipe otherwise = {}, QObject* parent = nullptr);

    /// The picture that the filters are shown on; everything is made anew. Null for none.
    void setPicture(const CIImage& picture);
    /// Of `kSize`. Null when there is none, or not yet; what was asked for last is made first.
    QImage pictureFor(const QString& filterName);

signals:
    void pictureReady();

private:
    void makeNext();
    void finish(int generation, const QString& filterName, const QImage& image);

    Recipe m_recipe, m_otherwise;
    CIImage m_picture;
    std::shared_ptr<CIBitmap> m_small; // the picture as it is; made and read by the thread
    QHash<QString, QImage> m_made; // null images for filters that show nothing
    QStringList m_wanted; // newest last
    int m_generation = 0; // of m_picture
    bool m_isWorking = false;
    QTimer m_pause;
    IdleThread m_worker;
};
