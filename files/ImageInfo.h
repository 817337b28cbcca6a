// The panel that shows what a picture file says about itself.
#pragma once

#include "platform/imageio/PictureProperties.h"

#include <QDialog>
#include <QHash>
#include <QUrl>

#include <memory>
#include <vector>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

/// A line of the property tree. The keys are the columns' names.
struct PropertyNode {
    QString key; // the property's name, fit to read
    QString val; // empty for a group
    std::vector<PropertyNode> children; // of a group
};

/// Floats beside the window. Always shows the current file, visible or not.
class ImageInfo : public QDialog {
    Q_OBJECT

public:
    explicit ImageInfo(QWidget* window);
    ~ImageInfo() override;

    void awakeFromNib();
    /// Has the shared panel (the first that was made) show the file soon, after what is going on now; an empty URL for
    /// no file.
    static void setMyURL(const QUrl& url);
    /// Does so as soon as the file is read. Nothing when that file is shown already and is as it was.
    void showURL(const QUrl& url);

    /// Lines for a file's properties, in their order.
    static std::vector<PropertyNode> propTree(const std::vector<PictureProperty>& properties);
    /// The name of a property: "{Exif}" is "Exif", "PixelWidth" is "Pixel Width".
    static QString label(const QString& key);

    void initTypes();
    const QHash<QString, QString>& types() const { return m_types; }
    void setTypes(const QHash<QString, QString>& types) { m_types = types; }

private:
    struct Reading;
    void giveUpReading();
    void show(const Result<PictureFileProperties>& read);
    void showTree(std::vector<PropertyNode> tree);

    QTreeWidget* mOView;
    QLabel *mFilePath, *mFileType, *mFileSize;
    std::vector<PropertyNode> mTree;
    QUrl mUrl;
    QString m_version; // of the file
    std::shared_ptr<Reading> m_reading;
    QHash<QString, QString> m_types; // uniform type identifier to what is shown
};
