// A small image well that remembers the file dropped on it.
#pragma once

#include <QFrame>
#include <QImage>
#include <QMimeData>

/// Shows a picture scaled down to fit, takes one dropped picture file, and can be dragged out again as that file.
class DropImageView : public QFrame {
    Q_OBJECT
public:
    explicit DropImageView(QWidget* parent = nullptr);

    void setFilePath1(const QString& path) { m_filePath = path; }
    const QString& filePath() const { return m_filePath; }

    void setImage(const QImage& image);
    const QImage& image() const { return m_image; }

    /// Always Copy, for drags inside the program and to others.
    Qt::DropActions draggingSourceOperationMaskForLocal(bool isLocal) const;
    QSize sizeHint() const override;

signals:
    /// A file was dropped, `filePath` names it; the owner reads it, sends it on and shows it by `setImage`.
    void imageDropped();

protected:
    void paintEvent(QPaintEvent*) override;
    void dragEnterEvent(QDragEnterEvent*) override;
    void dragLeaveEvent(QDragLeaveEvent*) override;
    void dropEvent(QDropEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override; // starts the drag: a mere click is none

private:
    void concludeDragOperation(const QMimeData& pasteboard);

    QString m_filePath;
    QImage m_image;
    QPoint m_pressed;
    bool m_dropHighlighted = false;
};
