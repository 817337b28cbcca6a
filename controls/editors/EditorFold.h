// The place of an editor in the panel: a line that opens and closes it.
#pragma once

#include "controls/editors/EditorTable.h"

#include <vector>

#include <QAbstractButton>

/// A line with an arrow: right when closed, down when open.
class FoldButton : public QAbstractButton {
    Q_OBJECT
public:
    FoldButton(const QString& title, QWidget* parent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent*) override; // right opens, left closes
};

/// The editor is made when the fold is first opened.
class EditorFold : public QWidget {
    Q_OBJECT
public:
    EditorFold(const EditorEntry& entry, EditedInput input, bool open, QWidget* parent);

    /// Of all of it, in a panel that leaves it that width.
    int heightFor(int width) const;
    bool isOpen() const { return m_button->isChecked(); }
    /// Null before the fold was opened.
    InputEditor* editor() const { return m_editor; }
    void showValues();
    /// What takes the keyboard, in the order of the Tab key.
    std::vector<QWidget*> controls() const;

signals:
    void toggled(bool open);
    /// It wants another height.
    void resized();
    void edited();

protected:
    bool event(QEvent*) override;

private:
    void open(bool open);

    const EditorEntry& m_entry;
    const EditedInput m_input;
    FoldButton* m_button;
    InputEditor* m_editor = nullptr;
};
