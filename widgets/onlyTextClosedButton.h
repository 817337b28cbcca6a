// A favourite in the strip.
#pragma once

#include "widgets/BaseColoredButton.h"

#include <QColor>
#include <QImage>

class FavouritesMaster;

/// A thumbnail on a card, with a box in its corner that removes it while the mouse is over it. The Delete key removes
/// it, too; arrow keys are left to the strip.
class onlyTextClosedButton : public BaseColoredButton {
    Q_OBJECT
public:
    explicit onlyTextClosedButton(QWidget* parent = nullptr);

    void awakeFromNib();
    /// Once.
    void addCloseBtn();
    BaseColoredButton* closeButton() const { return closeBtn; }
    /// The thumbnail; its size in points is its pixels through its device pixel ratio.
    void addBackImage(const QImage& image);
    const QImage& getBackImage() const { return backImg; }
    void setMyFontSize(float size);
    void setController(FavouritesMaster* controller) { m_controller = controller; }
    void setOffColor(const QColor& color);
    void setOnColor(const QColor& color);
    /// Held down, or switched on.
    bool isSelected() const;
    /// Asks the controller to remove the favourite.
    void removeMySelf();

    /// A favourite is called by its tool tip.
    void setName(const QString& name);

    QSize sizeHint() const override { return {51, 50}; }

protected:
    void paintEvent(QPaintEvent*) override;
    void enterEvent(QEnterEvent*) override;
    void leaveEvent(QEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void contextMenuEvent(QContextMenuEvent*) override;
    QPixmap dragImage() const override { return QPixmap::fromImage(backImg); }

private:
    void mouseEntered();
    void mouseExited();
    void drawBackImg(QPainter& painter);

    QColor offColor, onColor; // of the text, if there is any
    QImage backImg;
    float myfontSize = 9; // points
    BaseColoredButton* closeBtn = nullptr;
    FavouritesMaster* m_controller = nullptr;
};
