// Buttons that are a picture.
#pragma once

#include <QPoint>
#include <QPushButton>

/// Shows one resource picture when it is off and another when it is on or held down; without a border. Its state is
/// what it was told: a click says `clicked` and changes nothing by itself.
class BaseColoredButton : public QPushButton {
    Q_OBJECT
public:
    explicit BaseColoredButton(QWidget* parent = nullptr);

    /// Names of resource pictures.
    void setImages(const QString& image, const QString& alternateImage);
    /// Lets the button's picture be dragged to other places.
    void setDragEnable(bool enable) { isDragEnable = enable; }
    /// Stretches the picture over the button.
    void setFitToFrame(bool fit) { isFitToFrame = fit; }
    void setAllowsMixedState(bool allows) { m_allowsMixedState = allows; }
    bool allowsMixedState() const { return m_allowsMixedState; }

    QSize sizeHint() const override;

protected:
    void nextCheckState() override { }
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    /// What is dragged.
    virtual QPixmap dragImage() const { return currentImage(); }
    QPixmap currentImage() const;

private:
    QString m_image, m_alternateImage;
    bool isDragEnable = false;
    bool isFitToFrame = false;
    bool m_allowsMixedState = false;
    QPoint m_pressed;
};

/// Has its title once more in light grey, two points lower.
class BaseColoredTextButton : public BaseColoredButton {
    Q_OBJECT
public:
    using BaseColoredButton::BaseColoredButton;

protected:
    void paintEvent(QPaintEvent*) override;
};
