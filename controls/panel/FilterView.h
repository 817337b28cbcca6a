// The panel: the rows of a filter's inputs, one below the other, and the boxes that it is made of.
#pragma once

#include "controls/panel/PanelLayout.h"
#include "controls/panel/ParameterMaster.h"

#include <functional>
#include <memory>
#include <vector>

#include <QColor>
#include <QWidget>

class CaptionLabel;
class ParameterView;

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
    explicit FilterView(QWidget* parent);

    void setTag(int newTag) { tag = newTag; }

    using Filter = std::shared_ptr<CIFilter>;
    void tryFilterHeader(const Filter& filter);
    void trySliderForFilterKey(const Filter& filter, const std::string& key);
    void tryCheckBoxForFilterKey(const Filter& filter, const std::string& key);
    void tryColorWellForFilterKey(const Filter& filter, const std::string& key);
    void tryImageWellForFilterKey(const Filter& filter, const std::string& key);
    void tryTransformForFilterKey(const Filter& filter, const std::string& key);
    void tryVectorForFilterKey(const Filter& filter, const std::string& key);
    void tryOffsetForFilterKey(const Filter& filter, const std::string& key);
    void tryImageWellForImageTag(const CIImage& image, int tag);
    void tryImageHeader(const CIImage& image);
    void tryTextHeader(const QString& text);
    void tryTextViewForString() { } // how a text is edited is open
    void trySliderForText();

    void addFilterHeaderTagEnabled(const Filter& filter, int tag, bool enabled);
    void addSliderForFilterKey(const Filter& filter, const std::string& key);
    void addCheckBoxForFilterKey(const Filter& filter, const std::string& key);
    void addColorWellForFilterKey(const Filter& filter, const std::string& key);
    void addImageWellForFilterKey(const Filter& filter, const std::string& key);
    void addTransformForFilterKey(const Filter& filter, const std::string& key);
    void addVectorForFilterKey(const Filter& filter, const std::string& key);
    void addOffsetForFilterKey(const Filter& filter, const std::string& key);
    void addImageWellForImageTag(const CIImage& image, int tag);
    void addImageHeaderFilenameTagEnabled(const CIImage& image, const QString& filename, int tag, bool enabled);
    void addTextHeaderTagEnabled(const QString& text, int tag, bool enabled);
    void addTextViewForStringKey(const QString& string, const std::string& key);
    void addSliderForTextKeyLoHi(
        const std::shared_ptr<CIDictionary>& dictionary, const std::string& key, float lo, float hi);

    /// Ends the measuring pass.
    void trimBox();

    /// What both passes do: the row for each input of the filter, by rowKindOf.
    void tryRows();
    void addRows();

    std::size_t rowCount() const { return m_rows.size(); }
    /// The height that the rows need, with a margin below them.
    int contentHeight() const;
    /// The controls that take the keyboard, from top to bottom.
    std::vector<QWidget*> controls() const;

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    using RowOperation = void (FilterView::*)(const Filter&, const std::string&);
    struct Pass;
    using Builder = void (ParameterView::*)(const Filter&, const std::string&, ParameterMaster&);
    struct Row {
        RowKind kind;
        QWidget* widget;
    };

    void forEachRow(RowOperation Pass::*operation);
    void addRow(RowKind kind, const Filter& filter, const std::string& key, Builder builder);
    void addRow(RowKind kind, const std::function<void(ParameterView&)>& build);
    void addHeaderCaption(const QString& text);
    void setTopFrame(QWidget& widget, const QRect& frame) const; // y up

    std::int32_t tag = 0;
    CaptionLabel* filterNameField = nullptr; // the name is shown above the panel
    std::vector<Row> m_rows;
    QWidget* m_headerCaption = nullptr;
    int m_headerHeight = 10; // above the first row
};
