// Weights of neighbors as a grid.
#pragma once

#include "controls/editors/InputEditor.h"
#include "controls/editors/KernelPresets.h"

class PanelPopUp;
class QGridLayout;
class QLabel;
class QPushButton;
class ReadoutField;
class VectorRow;

/// The weights as a picture: black for the least, white for the greatest, grey for 0.
class KernelPicture : public QWidget {
    Q_OBJECT
public:
    explicit KernelPicture(QWidget* parent);
    void setWeights(const KernelWeights& weights, int columns);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    KernelWeights m_weights;
    int m_columns = 1;
};

/// A field for each weight, a menu of weights that are known by a name, a button that makes their sum 1. The arrow keys
/// go up and down in the grid.
class KernelEditor : public InputEditor {
    Q_OBJECT
public:
    KernelEditor(const EditedInput& input, QWidget* parent);

    void showValues() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    KernelWeights weights() const;
    void setWeights(const KernelWeights& weights);
    void fill(QGridLayout& grid);
    void showSummary();

    const int m_columns, m_rows;
    KernelPicture* m_picture;
    PanelPopUp* m_presets;
    QPushButton* m_normalize;
    QLabel* m_sum;
    VectorRow* m_fields;
};
