// Small pictures in the lists of file panels.
#pragma once

#include <QCache>
#include <QIcon>
#include <QIdentityProxyModel>

#include <atomic>
#include <memory>
#include <set>

class QFileDialog;

/// Shows picture files as what is in them. They are read one by one on another thread, and only those that are looked
/// at; what can't be read keeps its icon.
class FileThumbnails : public QIdentityProxyModel {
    Q_OBJECT

public:
    /// Makes the panel's list show them.
    static void installIn(QFileDialog& panel);
    ~FileThumbnails() override;

    QVariant data(const QModelIndex& index, int role) const override;

private:
    explicit FileThumbnails(QFileDialog& panel);
    void read(const QString& path) const;
    void show(const QString& path, const QImage& picture);

    struct Job;
    mutable QCache<QString, QIcon> m_icons;
    mutable std::set<QString> m_asked;
    std::shared_ptr<Job> m_job;
};
