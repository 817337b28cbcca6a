// One row of the panel: the control for one input of a filter.
#pragma once

#include "controls/panel/ParameterMaster.h"
#include "controls/panel/ParameterText.h"
#include "widgets/rows/TransformParts.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include <QColor>
#include <QImage>
#include <QWidget>

class CaptionLabel;
class ColorWell;
class DropImageView;
class PanelCheckBox;
class QPushButton;
class QTextEdit;
class ReadoutField;
class ValueSlider;

/// Exactly one of the builders is called. It reads the input's value, and from then on every change of the user goes to
/// the master: the value, the name of the undo step, then the wish to see it. A value that comes from elsewhere is not
/// noticed; the panel is then built anew.
///
/// Geometry is in points with y up, from the widths that the row has at any time. A double click on the caption, and
/// the row's menu, bring the standard value back. Numbers that aren't any, or beyond reason, never reach the filter.
class ParameterView : public QWidget {
    Q_OBJECT
public:
    explicit ParameterView(QWidget* parent = nullptr);
    ~ParameterView() override;

    using Filter = std::shared_ptr<CIFilter>;
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

    /// True if the text view shows other than the description says, or there is no text view.
    bool textViewDiffers(const CIDictionary& description) const;

    /// The text shortened for a field of that width.
    static QString ellipsizeFieldFontString(float width, const QFont& font, const QString& string)
    {
        return ellipsizedText(string, font, width);
    }
    static CIImage CIImageWithNSImage(const QImage& image);
    QImage CIImageToNSImageUsingRect(const CIImage& image, const CIRect& rect) const;

    /// One undo step; nothing if the input holds it already or has none.
    void resetToStandardValue();

protected:
    void resizeEvent(QResizeEvent*) override;
    void contextMenuEvent(QContextMenuEvent*) override;

private:
    using Placement = std::function<QRect(int width)>; // in a row of that width, y up

    void begin(const Filter& filter, const std::string& key, ParameterMaster& master);
    const CIInputAttributes& attributes() const;
    QString keyCaption() const;
    void place(QWidget* widget, const char* name, Placement placement);
    CaptionLabel* addCaption(const QString& text, const char* name, Placement placement);
    ValueSlider* addSlider(const QString& name, const char* objectName, Placement placement);
    ReadoutField* addReadout(const QString& name, const char* objectName, Placement placement, bool bezeled = false);
    void addNumberRow(const QString& caption, double lo, double hi);
    void addComponents(int count);
    void addTransformLine(int line);
    void addWell(const QString& name);

    void send(const CIValue& value);
    void beginChange();
    void endChange();
    void showValue(); // what the filter holds
    void showNumber();
    void showComponents();
    void showTransform();

    void sliderChanged();
    void readoutTextFieldChanged();
    void checkBoxChanged();
    void colorWellChanged();
    void colorWellTried(const QColor& color);
    void readout1TextFieldChanged() { componentTyped(0, true); }
    void readout2TextFieldChanged() { componentTyped(1, true); }
    void readout3TextFieldChanged() { componentTyped(2, true); }
    void readout4TextFieldChanged() { componentTyped(3, true); }
    void readout1DidChange() { componentTyped(0, false); }
    void readout2DidChange() { componentTyped(1, false); }
    void readout3DidChange() { componentTyped(2, false); }
    void readout4DidChange() { componentTyped(3, false); }
    void componentTyped(std::size_t component, bool committed);
    void giveUpTyping();
    void imageWellChanged();
    void pushButtonChanged();
    void imageLayerImageWellChanged();
    void imageLayerPushButtonChanged();
    void chooseFile(std::function<void(const QString&)> chosen);
    void takeFile(const QString& path);
    void textSliderChanged();
    void textReadoutTextFieldChanged();
    void scaleSliderChanged() { transformSliderChanged(0); }
    void angleSliderChanged() { transformSliderChanged(1); }
    void stretchSliderChanged() { transformSliderChanged(2); }
    void skewSliderChanged() { transformSliderChanged(3); }
    void scaleReadoutTextFieldChanged() { transformReadoutChanged(0); }
    void angleReadoutTextFieldChanged() { transformReadoutChanged(1); }
    void stretchReadoutTextFieldChanged() { transformReadoutChanged(2); }
    void skewReadoutTextFieldChanged() { transformReadoutChanged(3); }
    void transformSliderChanged(int line);
    void transformReadoutChanged(int line);
    bool takeTransformPart(int line, float part);
    void showTransformPart(int line);

    /// One part of a transform with its controls.
    struct TransformLine {
        ValueSlider* slider;
        ReadoutField* readout;
        std::int32_t dataType;
        float* last;
    };
    TransformLine transformLine(int line);
    TransformParts lastTransformParts() const;

    std::shared_ptr<CIFilter> filter;
    std::shared_ptr<CIDictionary> dict;
    std::string key;
    ParameterMaster* master = nullptr;
    ValueSlider* slider = nullptr;
    std::int32_t dataType = UnitClass::kScalar;
    PanelCheckBox* checkBox = nullptr;
    ColorWell* colorWell = nullptr;
    DropImageView* imageView = nullptr;
    QPushButton* pushButton = nullptr;
    CaptionLabel* labelTextField = nullptr;
    ReadoutField* readoutTextField = nullptr;
    QTextEdit* textView = nullptr; // no builder makes one
    std::int32_t beforeDecimal = 0, afterDecimal = 0;
    float lastFloatValue = 0;
    ValueSlider *scaleSlider = nullptr, *angleSlider = nullptr, *stretchSlider = nullptr, *skewSlider = nullptr;
    CaptionLabel *scaleLabelTextField = nullptr, *angleLabelTextField = nullptr, *stretchLabelTextField = nullptr,
                 *skewLabelTextField = nullptr;
    ReadoutField *scaleReadoutTextField = nullptr, *angleReadoutTextField = nullptr, *stretchReadoutTextField = nullptr,
                 *skewReadoutTextField = nullptr;
    std::int32_t scaleDataType = UnitClass::kScalar, angleDataType = UnitClass::kAngle,
                 stretchDataType = UnitClass::kScalar, skewDataType = UnitClass::kScalar;
    float lastScaleFloatValue = 1, lastAngleFloatValue = 0, lastStretchFloatValue = 1, lastSkewFloatValue = 0;
    bool usingNSAffineTransform = true;
    ReadoutField *readout1TextField = nullptr, *readout2TextField = nullptr, *readout3TextField = nullptr,
                 *readout4TextField = nullptr;

    std::vector<std::pair<QWidget*, Placement>> m_places;
    CIValue m_triedOver; // the color while others are tried
    CIValue m_valueBefore; // typing began
    bool m_changing = false; // a step of undo is open
};
