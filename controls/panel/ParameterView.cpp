// What all rows have in common, and the rows of one number, a check box, a color.
#include "controls/panel/ParameterView.h"

#include "controls/panel/CaptionLabel.h"
#include "controls/panel/DropImageView.h"
#include "controls/panel/TextDescription.h"
#include "controls/picture/PictureConversion.h"
#include "widgets/ColorWell.h"
#include "widgets/PanelCheckBox.h"
#include "widgets/ReadoutField.h"
#include "widgets/ValueSlider.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include <QContextMenuEvent>
#include <QLocale>
#include <QMenu>
#include <QTextEdit>

namespace {

QColor colorOf(const CIColor& color)
{
    const auto part = [](double v) { return float(std::clamp(v, 0.0, 1.0)); };
    return QColor::fromRgbF(part(color.red()), part(color.green()), part(color.blue()), part(color.alpha()));
}

CIColor colorOf(const QColor& color)
{
    const QColor rgb = color.toRgb();
    return {double(rgb.redF()), double(rgb.greenF()), double(rgb.blueF()), double(rgb.alphaF())};
}

} // namespace

ParameterView::ParameterView(QWidget* parent)
    : QWidget(parent)
{
}

ParameterView::~ParameterView()
{
    if (!m_triedOver.isNothing())
        filter->setValueForKey(m_triedOver, key);
    endChange();
}

// --- putting a row together ---

void ParameterView::begin(const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    filter = newFilter;
    key = newKey;
    master = &newMaster;
}

const CIInputAttributes& ParameterView::attributes() const
{
    static const CIInputAttributes none;
    const CIInputAttributes* input = filter ? filter->attributesForKey(key) : nullptr;
    return input ? *input : none;
}

QString ParameterView::keyCaption() const
{
    if (key.compare(0, 5, "input") != 0)
        std::puts("input key does not begin with input");
    CIInputAttributes input = attributes();
    input.key = key;
    return captionText(input);
}

void ParameterView::place(QWidget* widget, const char* name, Placement placement)
{
    widget->setParent(this);
    widget->setObjectName(QLatin1String(name));
    m_places.emplace_back(widget, std::move(placement));
    const QRect frame = m_places.back().second(width());
    widget->setGeometry(frame.x(), height() - frame.y() - frame.height(), frame.width(), frame.height());
    widget->show();
}

void ParameterView::resizeEvent(QResizeEvent*)
{
    for (const auto& [widget, placement] : m_places) {
        const QRect frame = placement(width());
        widget->setGeometry(frame.x(), height() - frame.y() - frame.height(), frame.width(), frame.height());
    }
}

CaptionLabel* ParameterView::addCaption(const QString& text, const char* name, Placement placement)
{
    auto* caption = new CaptionLabel(text, this);
    caption->setToolTip(filter ? tr("%1\nA double click brings the standard value back").arg(text) : text);
    connect(caption, &CaptionLabel::doubleClicked, this, &ParameterView::resetToStandardValue);
    place(caption, name, std::move(placement));
    return caption;
}

ValueSlider* ParameterView::addSlider(const QString& name, const char* objectName, Placement placement)
{
    auto* added = new ValueSlider(this);
    added->setAccessibleName(name);
    added->setToolTip(name);
    connect(added, &ValueSlider::pressed, this, &ParameterView::beginChange);
    connect(added, &ValueSlider::released, this, &ParameterView::endChange);
    connect(added, &ValueSlider::standardValueWanted, this, &ParameterView::resetToStandardValue);
    place(added, objectName, std::move(placement));
    return added;
}

ReadoutField* ParameterView::addReadout(const QString& name, const char* objectName, Placement placement, bool bezeled)
{
    auto* readout = new ReadoutField(this);
    readout->setFont(rowFont(font()));
    readout->setProperty("bezeled", bezeled); // for the style sheet, before it is shown
    readout->setAccessibleName(name);
    readout->setToolTip(tr("%1: type a number").arg(name));
    place(readout, objectName, std::move(placement));
    return readout;
}

// --- changing the value ---

void ParameterView::send(const CIValue& value)
{
    master->setFilterValueForKey(*filter, value, key);
    master->setActionNameForFilterKey(*filter, key);
    master->updateView();
}

void ParameterView::beginChange()
{
    if (!std::exchange(m_changing, true))
        master->beginChange();
}

void ParameterView::endChange()
{
    if (std::exchange(m_changing, false))
        master->endChange();
}

void ParameterView::resetToStandardValue()
{
    if (!filter)
        return;
    const CIValue standard = master->standardValueForKey(*filter, key);
    if (standard.isNothing() || standard == filter->valueForKey(key))
        return;
    send(standard);
    showValue();
}

void ParameterView::contextMenuEvent(QContextMenuEvent* event)
{
    if (!filter)
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* reset = menu->addAction(tr("Reset %1").arg(captionText(attributes())));
    const CIValue standard = master->standardValueForKey(*filter, key);
    reset->setEnabled(!standard.isNothing() && !(standard == filter->valueForKey(key)));
    connect(reset, &QAction::triggered, this, &ParameterView::resetToStandardValue);
    menu->popup(event->globalPos());
}

void ParameterView::showValue()
{
    if (slider)
        showNumber();
    else if (checkBox)
        checkBox->setChecked(filter->valueForKey(key).toBool());
    else if (colorWell)
        colorWell->setColor(colorOf(filter->valueForKey(key).toColor()));
    else if (scaleSlider)
        showTransform();
    else if (readout1TextField)
        showComponents();
    else if (imageView)
        imageView->setImage(thumbnailOf(filter->valueForKey(key).toImage()));
}

// --- a number ---

void ParameterView::addNumberRow(const QString& caption, double lo, double hi)
{
    const ReadoutFormat format = readoutFormatOf(dataType);
    beforeDecimal = format.beforeDecimal;
    afterDecimal = format.afterDecimal;
    labelTextField = addCaption(caption, "labelTextField", [](int) { return QRect(0, 0, 90, 16); });
    slider = addSlider(caption, "slider", [](int w) { return QRect(94, 0, w - 145, 16); });
    readoutTextField = addReadout(caption, "readoutTextField", [](int w) { return QRect(w - 47, 0, 43, 16); });
    slider->setRange(lo, hi);
    if (hi > lo)
        slider->setToolTip(tr("%1: %2 to %3%4", "name, smallest and largest value, unit")
                               .arg(caption, QLocale().toString(displayedNumber(lo, dataType), 'g', 4),
                                   QLocale().toString(displayedNumber(hi, dataType), 'g', 4), unitSign(dataType)));
    showNumber();
}

void ParameterView::showNumber()
{
    lastFloatValue = dict ? (*dict)[key].toFloat() : filter->valueForKey(key).toFloat();
    slider->setValue(double(lastFloatValue));
    const QString text = shownText(double(lastFloatValue), dataType, {beforeDecimal, afterDecimal});
    slider->setValueText(text.trimmed() + unitSign(dataType));
    readoutTextField->setShownText(text);
}

void ParameterView::addSliderForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    begin(newFilter, newKey, newMaster);
    const CIInputAttributes& input = attributes();
    dataType = unitClassOf(input.kind);
    addNumberRow(
        keyCaption(), input.sliderMin.value_or(input.min.value_or(0)), input.sliderMax.value_or(input.max.value_or(0)));
    slider->setWhole(input.kind == InputKind::Integer || input.kind == InputKind::Count);
    if (input.defaultValue.isNumber())
        slider->setStandardValue(input.defaultValue.toDouble());
    connect(slider, &ValueSlider::valueChanged, this, &ParameterView::sliderChanged);
    connect(readoutTextField, &ReadoutField::committed, this, &ParameterView::readoutTextFieldChanged);
}

void ParameterView::sliderChanged()
{
    const float value = float(slider->value());
    if (!filter || value == lastFloatValue)
        return;
    lastFloatValue = value;
    const QString text = shownText(double(value), dataType, {beforeDecimal, afterDecimal});
    slider->setValueText(text.trimmed() + unitSign(dataType));
    readoutTextField->setShownText(text);
    send(slider->value());
}

void ParameterView::readoutTextFieldChanged()
{
    const std::optional<double> typed = typedNumber(readoutTextField->text());
    if (!filter || !typed) {
        readoutTextField->restore();
        return;
    }
    readoutTextField->keepTypedText();
    const float value = float(storedNumber(*typed, dataType));
    if (value == lastFloatValue)
        return;
    lastFloatValue = value;
    slider->setValue(double(value));
    slider->setValueText(readoutTextField->text().trimmed() + unitSign(dataType));
    send(value);
}

// --- a number of a text ---

void ParameterView::addSliderForTextKeyLoHiMaster(const std::shared_ptr<CIDictionary>& dictionary,
    const std::string& newKey, float lo, float hi, ParameterMaster& newMaster)
{
    begin(nullptr, newKey, newMaster);
    dict = dictionary;
    addNumberRow(wordsOfKey(QString::fromStdString(key)), double(lo), double(hi));
    connect(slider, &ValueSlider::valueChanged, this, &ParameterView::textSliderChanged);
    connect(readoutTextField, &ReadoutField::committed, this, &ParameterView::textReadoutTextFieldChanged);
}

void ParameterView::textSliderChanged()
{
    const float value = float(slider->value());
    if (value == lastFloatValue)
        return;
    lastFloatValue = value;
    readoutTextField->setShownText(shownText(double(value), dataType, {beforeDecimal, afterDecimal}));
    slider->setValueText(readoutTextField->text().trimmed());
    master->setDictValueForKey(dict, value, key);
    master->updateView();
}

void ParameterView::textReadoutTextFieldChanged()
{
    const std::optional<double> typed = typedNumber(readoutTextField->text());
    if (!typed) {
        readoutTextField->restore();
        return;
    }
    readoutTextField->keepTypedText();
    const float value = float(*typed);
    if (value == lastFloatValue)
        return;
    lastFloatValue = value;
    slider->setValue(double(value));
    slider->setValueText(readoutTextField->text().trimmed());
    master->setDictValueForKey(dict, value, key);
    master->updateView();
}

bool ParameterView::textViewDiffers(const CIDictionary& description) const
{
    return !textView || textDiffers(*textView->document(), description);
}

// --- a check box ---

void ParameterView::addCheckBoxForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    begin(newFilter, newKey, newMaster);
    const QString caption = keyCaption();
    checkBox = new PanelCheckBox(caption, this);
    checkBox->setFont(rowFont(font()));
    checkBox->setAccessibleName(caption);
    checkBox->setToolTip(caption);
    place(checkBox, "checkBox", [](int) { return QRect(76, 0, 155, 16); });
    checkBox->setText(ellipsizedText(caption, checkBox->font(), 155 - 20)); // beside the box
    showValue();
    connect(checkBox, &QCheckBox::clicked, this, &ParameterView::checkBoxChanged);
}

void ParameterView::checkBoxChanged()
{
    if (filter)
        send(checkBox->isChecked());
}

// --- a color ---

void ParameterView::addColorWellForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    begin(newFilter, newKey, newMaster);
    const QString caption = keyCaption();
    labelTextField = addCaption(caption, "labelTextField", [](int w) { return QRect(0, 0, w - 43, 16); });
    colorWell = new ColorWell(this);
    colorWell->setAccessibleName(caption);
    colorWell->setToolTip(tr("%1: choose a color and how opaque it is").arg(caption));
    place(colorWell, "colorWell", [](int w) { return QRect(w - 38, 0, 38, 24); });
    showValue();
    connect(colorWell, &ColorWell::colorPicked, this, &ParameterView::colorWellChanged);
    connect(colorWell, &ColorWell::colorTried, this, &ParameterView::colorWellTried);
}

void ParameterView::colorWellChanged()
{
    if (filter)
        send(colorOf(colorWell->color()));
}

/// Nothing to undo: only seen until the color is picked or given up.
void ParameterView::colorWellTried(const QColor& color)
{
    if (!filter)
        return;
    if (m_triedOver.isNothing())
        m_triedOver = filter->valueForKey(key);
    // The color that was there may be one that a QColor can't hold.
    const bool isOldOne = color == colorWell->color();
    filter->setValueForKey(isOldOne ? std::exchange(m_triedOver, {}) : CIValue(colorOf(color)), key);
    master->updateView();
}
