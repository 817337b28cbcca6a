// What each filter makes of the open picture, small, for the list of filters.
#pragma once

#include "app/catalogue/Thumbnail.h"
#include "platform/coreimage/CIImage.h"

#include <QHash>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

/// Makes pictures when they are first asked for, one after the other, on a thread that runs only while the processor
/// has nothing else to do.
class CataloguePictures : public QObject {
    Q_OBJECT

public:
    /// Answers the recipe of a filter (by class name) over the given small picture; called in the main thread.
    using Recipe = std::function<CIImage(const QString& filterName, const CIImage& picture)>;

    explicit CataloguePictures(Recipe recipe, QObject* parent = nullptr);
    ~CataloguePictures() override;

    /// The picture that the filters are shown on; everything is made anew. Null for none.
    void setPicture(const CIImage& picture);
    /// Of `kFavouriteThumbnail` points. Null when there is none, or not yet.
    QImage pictureFor(const QString& filterName);

signals:
    void pictureReady();

private:
    class Worker;
    void makeNext();
    void finish(int generation, const QString& filterName, const QImage& image);

    Recipe m_recipe;
    CIImage m_picture, m_small; // the open one, and the bitmap made of it
    QHash<QString, QImage> m_made; // null images for filters that show nothing
    QStringList m_wanted; // newest last
    int m_generation = 0; // of m_picture
    bool m_isWorking = false;
    QTimer m_pause;
    std::unique_ptr<Worker> m_worker;
};
