// What lies behind the 3D picture.
#pragma once

#include <QWidget>

/// Plain white, like paper, in the light and in the dark look.
class Top3DView : public QWidget {
    Q_OBJECT
public:
    explicit Top3DView(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
