// Tables of colors, from files and of our own.
#pragma once

#include "controls/editors/ColorTable.h"
#include "controls/editors/InputEditor.h"

#include <QAbstractButton>
#include <QImage>

class QGridLayout;
class QLabel;
class QPushButton;

/// A small picture with a name below.
class LookButton : public QAbstractButton {
    Q_OBJECT
public:
    LookButton(const QString& name, QWidget* parent);
    void setPicture(const QImage& picture);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QImage m_picture;
};

/// A button for .cube files and small pictures of the looks, one of which is marked when the table is its. The table
/// and its side are set in one step. Where a filter has several tables of one side, the others are kept by being
/// sampled anew.
class CubeEditor : public InputEditor {
    Q_OBJECT
public:
    CubeEditor(const EditedInput& input, QWidget* parent);

    void showValues() override;
    /// Lets the user choose a file.
    void chooseFile();
    /// Takes the table of a .cube file; one that is damaged is told of and changes nothing.
    void loadFile(const QString& path);

private:
    void addLooks(QGridLayout& grid);
    /// Whether the table stands over linear light.
    bool isInLight() const;
    std::size_t side() const;
    void setTable(std::size_t side, const ColorRule& rule);
    void say(const QString& text, bool isFault);

    QPushButton* m_load;
    QLabel* m_state;
    std::vector<LookButton*> m_looks;
    QString m_folder;
};
