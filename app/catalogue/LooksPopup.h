// The looks that come with the program, to choose from.
#pragma once

#include "app/catalogue/CataloguePictures.h"
#include "app/catalogue/Looks.h"

#include <QListWidget>

/// A panel of small pictures that closes when one is chosen: what each look makes of the open picture.
class LooksPopup : public QListWidget {
    Q_OBJECT

public:
    explicit LooksPopup(QWidget* parent);
    /// Shows itself above the button.
    void popUp(const QWidget& button, const CIImage& picture);

signals:
    void chosen(const PictureLook* look);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void take(const QListWidgetItem* item);
    void showPictures();

    CataloguePictures m_pictures;
    CIImage m_picture;
};
