// The panel: the rows of a filter's inputs, one below the other, and the boxes that it is made of.
#pragma once

#include "controls/panel/PanelLayout.h"
#include "controls/panel/ParameterMaster.h"

#include <functional>
#include <memory>
#include <set>
#include <vector>

#include <QColor>
#include <QWidget>

class CaptionLabel;
class EditorFold;
class ParameterView;

/// The folds that are open, each as "filter's name/input's key". They outlive the panel, which is built anew often.
using OpenFolds = std::shared_ptr<std::set<std::string>>;

/// Draws a rounded line around itself.
class MyBorderView : public QWidget {
    Q_OBJECT
public:
    explicit MyBorderView(QWidget* parent = nullptr);
    void setBorderColor(const QColor& color);
    void setLineWidth(float width);

protected:
    void paintEvent(QPaintEvent*) override { drawBorder(); }
    void drawBorder();

private:
    QColor bgColor; // of the line
    float lineWidth = 1; // points
};

/// The box of one filter. It has a border only while there are controls in it.
class EffectStackBox : public MyBorderView {
    Q_OBJECT
public:
    using MyBorderView::MyBorderView;
    void setFilter(const std::shared_ptr<CIFilter>& newFilter) { filter = newFilter; }
    void setMaster(ParameterMaster& newMaster) { master = &newMaster; }

protected:
    void paintEvent(QPaintEvent*) override;

    std::shared_ptr<CIFilter> filter;
    ParameterMaster* master = nullptr;
};

/// Stacks rows from the top down, in two passes: the `try` operations only move on by the height that their `add` twins
/// take. Filter and master are set before a row is added. When the box gets another width its rows are placed anew.
class FilterView : public EffectStackBox, private RowStack {
    Q_OBJECT
public:
    /// Takes the size of `parent`, its place is up to that one's layout.
    explicit FilterView(QWidget* parent, OpenFolds openFolds = std::make_shared<std::set<std::string>>());

    void setTag(int newTag) { tag = newTag; }

    using Filter = std::shared_ptr<CIFilter>;
    void tryFilterHeader(const Filter&) { measureHeader(); }
    void tryImageHeader(const CIImage&) { measureHeader(); }
    void tryTextHeader(const QString&) { measureHeader(); }
    void trySliderForFilterKey(const Filter&, const std::string&) { measure(RowKind::Slider); }
    void tryCheckBoxForFilterKey(const Filter&, const std::string&) { measure(RowKind::CheckBox); }
    void tryColorWellForFilterKey(const Filter&, const std::string&) { measure(RowKind::ColorWell); }
    void tryImageWellForFilterKey(const Filter&, const std::string&) { measure(RowKind::ImageWell); }
    void tryTransformForFilterKey(const Filter&, const std::string&) { measure(RowKind::Transform); }
    void tryVectorForFilterKey(const Filter&, const std::string&) { measure(RowKind::Vector); }
    void tryOffsetForFilterKey(const Filter&, const std::string&) { measure(RowKind::Offset); }
    void tryImageWellForImageTag(const CIImage&, int) { measure(RowKind::ImageWell); }
    void tryTextViewForString() { } // how a text is edited is open
    void trySliderForText() { measure(RowKind::Slider); }

    void addFilterHeaderTagEnabled(const Filter& filter, int tag, bool enabled);
    void addSliderForFilterKey(const Filter& of, const std::string& key) { addRow(RowKind::Slider, of, key); }
    void addCheckBoxForFilterKey(const Filter& of, const std::string& key) { addRow(RowKind::CheckBox, of, key); }
    void addColorWellForFilterKey(const Filter& of, const std::string& key) { addRow(RowKind::ColorWell, of, key); }
    void addImageWellForFilterKey(const Filter& of, const std::string& key) { addRow(RowKind::ImageWell, of, key); }
    void addTransformForFilterKey(const Filter& of, const std::string& key) { addRow(RowKind::Transform, of, key); }
    void addVectorForFilterKey(const Filter& of, const std::string& key) { addRow(RowKind::Vector, of, key); }
    void addOffsetForFilterKey(const Filter& of, const std::string& key) { addRow(RowKind::Offset, of, key); }
    void addImageWellForImageTag(const CIImage& image, int tag);
    void addImageHeaderFilenameTagEnabled(const CIImage&, const QString& name, int, bool) { addHeaderCaption(name); }
    void addTextHeaderTagEnabled(const QString&, int, bool) { addHeaderCaption(tr("Text")); }
    void addTextViewForStringKey(const QString&, const std::string&) { }
    void addSliderForTextKeyLoHi(
        const std::shared_ptr<CIDictionary>& dictionary, const std::string& key, float lo, float hi);

    /// Ends the measuring pass.
    void trimBox();

    /// What both passes do: the row for each input of the filter, by rowKindOf.
    void tryRows();
    void addRows();

    bool isEmpty() const { return m_rows.empty(); }
    /// The height that rows and folds need, with a margin below them.
    int contentHeight() const;
    /// The controls that take the keyboard, from top to bottom.
    std::vector<QWidget*> controls() const;

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    struct Row { // or a fold
        RowKind kind;
        QWidget* widget;
    };

    void forEachRow(const std::function<void(RowKind kind, const std::string& key)>& act);
    void placeRows();
    QRect placeRow(const Row& row);
    void addFold(const std::string& key);
    void foldResized();
    void showValuesBeside(const QWidget& edited);
    void measure(RowKind kind) { place(kind, width()); }
    void measureHeader();
    void addRow(RowKind kind, const Filter& of, const std::string& key);
    void addRow(RowKind kind, const std::function<void(ParameterView&)>& build);
    void addHeaderCaption(const QString& text);
    void setTopFrame(QWidget& widget, const QRect& frame) const; // y up

    std::int32_t tag = 0;
    CaptionLabel* filterNameField = nullptr; // the name is shown above the panel
    std::vector<Row> m_rows;
    const OpenFolds m_openFolds;
    QWidget* m_headerCaption = nullptr;
    int m_headerHeight = 10; // above the first row
};
