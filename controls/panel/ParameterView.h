// One row of the panel: the control for one input of a filter.
#pragma once

#include "controls/panel/PanelLayout.h"
#include "controls/panel/ParameterMaster.h"
#include "controls/panel/ParameterText.h"
#include "controls/rows/ImageRow.h"
#include "widgets/rows/ColorRow.h"
#include "widgets/rows/NumberRow.h"
#include "widgets/rows/SwitchRow.h"
#include "widgets/rows/TransformRow.h"
#include "widgets/rows/VectorRow.h"

#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

#include <QImage>
#include <QWidget>

class CaptionLabel;
class PanelCheckBox;
class QTextEdit;

/// Exactly one of the builders is called. It binds a row of that kind to the input: every change of the user goes to
/// the master: the value, the name of the undo step, then the wish to see it. A value that comes from elsewhere is not
/// noticed; an editor says so by `showValue`, otherwise the panel is built anew.
///
/// Geometry is in points with y up, from the widths that the row has at any time. A double click on the caption, and
/// the row's menu, bring the standard value back. Numbers that aren't any, or beyond reason, never reach the filter.
class ParameterView : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    using Filter = std::shared_ptr<CIFilter>;
    /// The builder of that kind.
    void addRowForFilterKeyMaster(RowKind kind, const Filter& filter, const std::string& key, ParameterMaster& master);
    void addSliderForFilterKeyMaster(const Filter& filter, const std::string& key, ParameterMaster& master);
    void addCheckBoxForFilterKeyMaster(const Filter& filter, const std::string& key, ParameterMaster& master);
    void addColorWellForFilterKeyMaster(const Filter& filter, const std::string& key, ParameterMaster& master);
    /// Four numbers; an edited vector has four, whatever it had.
    void addVectorForFilterKeyMaster(const Filter& filter, const std::string& key, ParameterMaster& master);
    /// The first two numbers of a vector.
    void addOffsetForFilterKeyMaster(const Filter& filter, const std::string& key, ParameterMaster& master);
    /// The value is a transform, or a vector of its six numbers.
    void addTransformForFilterKeyMaster(const Filter& filter, const std::string& key, ParameterMaster& master);
    void addImageWellForFilterKeyMaster(const Filter& filter, const std::string& key, ParameterMaster& master);
    /// A well without a filter behind it; changing it only redraws.
    void addImageWellForImageTagMaster(const CIImage& image, int tag, ParameterMaster& master);
    /// A number of a text's description.
    void addSliderForTextKeyLoHiMaster(const std::shared_ptr<CIDictionary>& dictionary, const std::string& key,
        float lo, float hi, ParameterMaster& master);

    /// Shows the filter's value again, for an editor has set one.
    void showValue() { m_row->show(); }

    /// True if the text view shows other than the description says, or there is no text view.
    bool textViewDiffers(const CIDictionary& description) const;

    /// The text shortened for a field of that width.
    static QString ellipsizeFieldFontString(float width, const QFont& font, const QString& string)
    {
        return ellipsizedText(string, font, width);
    }
    static CIImage CIImageWithNSImage(const QImage& image);
    QImage CIImageToNSImageUsingRect(const CIImage& image, const CIRect& rect) const;

public slots:
    // What the controls do, by name. Nothing where there is no such control.
    void sliderChanged() { act(&NumberRow::sliderMoved); }
    void readoutTextFieldChanged() { act(&NumberRow::readoutTyped); }
    void textSliderChanged() { act(&NumberRow::sliderMoved); }
    void textReadoutTextFieldChanged() { act(&NumberRow::readoutTyped); }
    void checkBoxChanged() { act(&SwitchRow::clicked); }
    void colorWellChanged() { act(&ColorRow::picked); }
    void readout1TextFieldChanged() { act(&VectorRow::committed, 0); }
    void readout2TextFieldChanged() { act(&VectorRow::committed, 1); }
    void readout3TextFieldChanged() { act(&VectorRow::committed, 2); }
    void readout4TextFieldChanged() { act(&VectorRow::committed, 3); }
    void readout1DidChange() { act(&VectorRow::typed, 0); }
    void readout2DidChange() { act(&VectorRow::typed, 1); }
    void readout3DidChange() { act(&VectorRow::typed, 2); }
    void readout4DidChange() { act(&VectorRow::typed, 3); }
    void scaleSliderChanged() { act(&TransformRow::sliderMoved, TransformRow::Scale); }
    void scaleReadoutTextFieldChanged() { act(&TransformRow::readoutTyped, TransformRow::Scale); }
    void angleSliderChanged() { act(&TransformRow::sliderMoved, TransformRow::Angle); }
    void angleReadoutTextFieldChanged() { act(&TransformRow::readoutTyped, TransformRow::Angle); }
    void stretchSliderChanged() { act(&TransformRow::sliderMoved, TransformRow::Stretch); }
    void stretchReadoutTextFieldChanged() { act(&TransformRow::readoutTyped, TransformRow::Stretch); }
    void skewSliderChanged() { act(&TransformRow::sliderMoved, TransformRow::Skew); }
    void skewReadoutTextFieldChanged() { act(&TransformRow::readoutTyped, TransformRow::Skew); }
    void imageWellChanged() { act(&ImageRow::fileDropped); }
    void pushButtonChanged() { act(&ImageRow::chooseFile); }
    void imageLayerImageWellChanged() { master->updateView(); }
    void imageLayerPushButtonChanged() { act(&ImageRow::chooseFile); }

signals:
    /// The user has set the value.
    void edited();

protected:
    void resizeEvent(QResizeEvent*) override;
    void contextMenuEvent(QContextMenuEvent*) override;

private:
    using Placement = std::function<QRect(int width)>; // in a row of that width, y up

    template <class Row, class... Arguments>
    void act(void (Row::*action)(Arguments...), std::type_identity_t<Arguments>... arguments)
    {
        if (auto* row = qobject_cast<Row*>(m_row))
            (row->*action)(arguments...);
    }
    ValueBinding bind(const Filter& filter, const std::string& key, ParameterMaster& master);
    template <class Row>
    Row& keep(Row* row)
    {
        m_row = row;
        return *row;
    }
    CIInputAttributes attributes() const;
    QString hint(const QString& caption) const;
    QString keyCaption() const;
    template <class Widget>
    Widget* place(Widget* widget, const char* name, Placement placement);
    void setPlace(QWidget& widget, const Placement& placement) const;
    CaptionLabel* addCaption(const QString& text, const char* name, Placement placement);
    void dressReadout(ReadoutField& readout, const QString& name, bool bezeled);
    void addNumberRow(const QString& caption, const NumberLook& look, ValueBinding value);
    void addComponents(int count, ValueBinding value);
    ImageRow& addWell(const QString& name, ValueBinding value);

    Filter filter;
    std::string key;
    ParameterMaster* master = nullptr;
    QTextEdit* textView = nullptr; // no builder makes one

    ValueRow* m_row = nullptr;
    std::vector<std::pair<QWidget*, Placement>> m_places;
};
