// The middle of the window in 3D mode.
#pragma once

#include <QWidget>

class MyOGLView;
class QLabel;
class Top3DView;

/// A sheet of paper in the proportions of the picture with the 3D view on it, or a note where there is no OpenGL.
class ThreeDStage : public QWidget {
    Q_OBJECT
public:
    explicit ThreeDStage(QWidget* parent = nullptr);

    MyOGLView* openGLView() const { return m_view; }
    /// The picture's size in any unit; 726 x 544 for an empty one. With an effect very long pictures get a sheet that
    /// leaves it room.
    void setProportions(const QSizeF& picture, bool hasEffect);
    /// The sheet in the unit of the proportions that were set.
    QSizeF proportions() const { return m_proportions; }

protected:
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;

private:
    void layOut();

    Top3DView* m_paper;
    MyOGLView* m_view;
    QLabel* m_note; // says that there is no OpenGL
    QSizeF m_proportions;
};
