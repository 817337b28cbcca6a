#include "controls/panel/ParameterView.h"

#include "controls/panel/CaptionLabel.h"
#include "controls/panel/DropImageView.h"
#include "controls/panel/FilterNames.h"
#include "controls/panel/InputBinding.h"
#include "controls/panel/TextDescription.h"
#include "controls/picture/PictureConversion.h"
#include "widgets/ColorWell.h"
#include "widgets/PanelCheckBox.h"
#include "widgets/ReadoutField.h"
#include "widgets/ValueSlider.h"

#include <cstdio>
#include <map>
#include <utility>

#include <QContextMenuEvent>
#include <QLocale>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>

// --- what all rows have in common ---

void ParameterView::addRowForFilterKeyMaster(
    RowKind kind, const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    using Builder = void (ParameterView::*)(const Filter&, const std::string&, ParameterMaster&);
    static const std::map<RowKind, Builder> builders = {
        {RowKind::Slider, &ParameterView::addSliderForFilterKeyMaster},
        {RowKind::CheckBox, &ParameterView::addCheckBoxForFilterKeyMaster},
        {RowKind::ColorWell, &ParameterView::addColorWellForFilterKeyMaster},
        {RowKind::ImageWell, &ParameterView::addImageWellForFilterKeyMaster},
        {RowKind::Transform, &ParameterView::addTransformForFilterKeyMaster},
        {RowKind::Vector, &ParameterView::addVectorForFilterKeyMaster},
        {RowKind::Offset, &ParameterView::addOffsetForFilterKeyMaster},
    };
    (this->*builders.at(kind))(newFilter, newKey, newMaster);
}

ValueBinding ParameterView::bind(const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    filter = newFilter;
    key = newKey;
    master = &newMaster;
    ValueBinding value = inputBinding(newFilter, newKey, newMaster);
    // A row goes with its children, when its members have gone.
    value.set = [set = value.set, row = QPointer<ParameterView>(this)](const CIValue& changed) {
        set(changed);
        if (row)
            emit row->edited();
    };
    return value;
}

CIInputAttributes ParameterView::attributes() const
{
    const CIInputAttributes* input = filter->attributesForKey(key);
    CIInputAttributes found = input ? *input : CIInputAttributes();
    found.key = key;
    return found;
}

/// The name, and what the input is for.
QString ParameterView::hint(const QString& caption) const
{
    const QString use = shownInputDescription(filter->name(), key);
    return use.isEmpty() ? caption : caption + QLatin1Char('\n') + use;
}

QString ParameterView::keyCaption() const
{
    if (key.compare(0, 5, "input") != 0)
        std::puts("input key does not begin with input");
    return captionText(attributes());
}

template <class Widget>
Widget* ParameterView::place(Widget* widget, const char* name, Placement placement)
{
    widget->setObjectName(QLatin1String(name));
    setPlace(*widget, placement);
    m_places.emplace_back(widget, std::move(placement));
    widget->show();
    return widget;
}

void ParameterView::setPlace(QWidget& widget, const Placement& placement) const
{
    const QRect frame = placement(width());
    widget.setGeometry(frame.x(), height() - frame.y() - frame.height(), frame.width(), frame.height());
}

void ParameterView::resizeEvent(QResizeEvent*)
{
    for (const auto& [widget, placement] : m_places)
        setPlace(*widget, placement);
}

CaptionLabel* ParameterView::addCaption(const QString& text, const char* name, Placement placement)
{
    auto* caption = new CaptionLabel(text, this);
    caption->setToolTip(filter ? tr("%1\nA double click brings the standard value back").arg(hint(text)) : text);
    connect(caption, &CaptionLabel::doubleClicked, this, [this] { m_row->reset(); });
    return place(caption, name, std::move(placement));
}

void ParameterView::dressReadout(ReadoutField& readout, const QString& name, bool bezeled)
{
    readout.setFont(rowFont(font()));
    readout.setProperty("bezeled", bezeled); // for the style sheet, before it is shown
    readout.setAccessibleName(name);
    readout.setToolTip(tr("%1: type a number").arg(name));
}

void ParameterView::contextMenuEvent(QContextMenuEvent* event)
{
    if (!filter)
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* reset = menu->addAction(tr("Reset %1").arg(captionText(attributes())));
    reset->setEnabled(m_row->canReset());
    connect(reset, &QAction::triggered, m_row, &ValueRow::reset);
    menu->popup(event->globalPos());
}

// --- numbers ---

void ParameterView::addNumberRow(const QString& caption, const NumberLook& look, ValueBinding value)
{
    addCaption(caption, "labelTextField", [](int) { return QRect(0, 0, 90, 16); });
    const NumberRow& row = keep(new NumberRow(this, look, std::move(value)));
    row.slider->setAccessibleName(caption);
    const auto end = [&](double number) { return QLocale().toString(displayedNumber(number, look.unitClass), 'g', 4); };
    row.slider->setToolTip(look.max > look.min
            ? tr("%1: %2 to %3%4", "name, smallest and largest value, unit")
                  .arg(caption, end(look.min), end(look.max), unitSign(look.unitClass))
            : caption);
    place(row.slider, "slider", [](int w) { return QRect(94, 0, w - 145, 16); });
    dressReadout(*row.readout, caption, false);
    place(row.readout, "readoutTextField", [](int w) { return QRect(w - 47, 0, 43, 16); });
}

void ParameterView::addSliderForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    ValueBinding value = bind(newFilter, newKey, newMaster);
    const CIInputAttributes input = attributes();
    NumberLook look{.min = input.sliderMin.value_or(input.min.value_or(0)),
        .max = input.sliderMax.value_or(input.max.value_or(0)),
        .unitClass = unitClassOf(input.kind),
        .whole = input.kind == InputKind::Integer || input.kind == InputKind::Count,
        .growth = newMaster.sliderGrowthForKey(*newFilter, newKey),
        .least = input.min,
        .most = input.max};
    if (input.defaultValue.isNumber())
        look.mark = input.defaultValue.toDouble();
    addNumberRow(keyCaption(), look, std::move(value));
}

void ParameterView::addSliderForTextKeyLoHiMaster(const std::shared_ptr<CIDictionary>& dict, const std::string& newKey,
    float lo, float hi, ParameterMaster& newMaster)
{
    master = &newMaster;
    addNumberRow(wordsOfKey(QString::fromStdString(newKey)), {.min = double(lo), .max = double(hi)},
        {.get = [dict, newKey] { return (*dict)[newKey]; },
            .set =
                [dict, newKey, &newMaster](const CIValue& number) {
                    newMaster.setDictValueForKey(dict, number.toFloat(), newKey);
                    newMaster.updateView();
                },
            .begin = [&newMaster] { newMaster.beginChange(); },
            .end = [&newMaster] { newMaster.endChange(); }});
}

bool ParameterView::textViewDiffers(const CIDictionary& description) const
{
    return !textView || textDiffers(*textView->document(), description);
}

// --- several numbers ---

void ParameterView::addVectorForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    addComponents(4, bind(newFilter, newKey, newMaster));
}

void ParameterView::addOffsetForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    addComponents(2, bind(newFilter, newKey, newMaster));
}

void ParameterView::addComponents(int count, ValueBinding value)
{
    static const char* const names[] = {
        "readout1TextField", "readout2TextField", "readout3TextField", "readout4TextField"};
    const QString caption = keyCaption();
    addCaption(caption, "labelTextField", [](int) { return QRect(0, 0, 75, 16); });
    const VectorRow& row = keep(new VectorRow(this, count, std::move(value)));
    for (int i = 0; i < count; ++i) {
        ReadoutField& readout = *row.readouts()[std::size_t(i)];
        dressReadout(
            readout, tr("%1 %2", "parameter and X, Y, Z or W").arg(caption, QStringLiteral("XYZW").mid(i, 1)), true);
        place(&readout, names[i], [i](int w) {
            const int field = (w - 5 - 95) / 4;
            return QRect(80 + i * (field + 5), 0, field, 16);
        });
    }
}

void ParameterView::addTransformForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    const struct {
        TransformRow::Line line;
        QString caption;
        const char *labelTextField, *slider, *readoutTextField;
    } lines[] = {
        {TransformRow::Scale, tr("Scale"), "scaleLabelTextField", "scaleSlider", "scaleReadoutTextField"},
        {TransformRow::Angle, tr("Angle"), "angleLabelTextField", "angleSlider", "angleReadoutTextField"},
        {TransformRow::Stretch, tr("Stretch"), "stretchLabelTextField", "stretchSlider", "stretchReadoutTextField"},
        {TransformRow::Skew, tr("Skew"), "skewLabelTextField", "skewSlider", "skewReadoutTextField"},
    };
    const TransformRow& row = keep(new TransformRow(this, bind(newFilter, newKey, newMaster)));
    for (const auto& [line, caption, labelName, sliderName, readoutName] : lines) {
        const int y = 51 - 17 * line;
        const QString name = tr("%1 %2", "parameter and its part, as in Transform Angle").arg(keyCaption(), caption);
        addCaption(caption, labelName, [y](int) { return QRect(0, y, 75, 16); });
        ValueSlider* slider =
            place(row.line(line).slider, sliderName, [y](int w) { return QRect(80, y, w - 133, 16); });
        slider->setAccessibleName(name);
        slider->setToolTip(name);
        dressReadout(*row.line(line).readout, name, false);
        place(row.line(line).readout, readoutName, [y](int w) { return QRect(w - 48, y, 43, 16); });
    }
}

// --- switches and colors ---

void ParameterView::addCheckBoxForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    PanelCheckBox* checkBox = keep(new SwitchRow(this, bind(newFilter, newKey, newMaster))).box;
    const QString caption = keyCaption();
    checkBox->setFont(rowFont(font()));
    checkBox->setText(ellipsizedText(caption, checkBox->font(), 155 - 20)); // beside the box
    checkBox->setAccessibleName(caption);
    checkBox->setToolTip(hint(caption));
    place(checkBox, "checkBox", [](int) { return QRect(76, 0, 155, 16); });
}

void ParameterView::addColorWellForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    ColorWell* colorWell = keep(new ColorRow(this, bind(newFilter, newKey, newMaster))).well;
    const QString caption = keyCaption();
    addCaption(caption, "labelTextField", [](int w) { return QRect(0, 0, w - 43, 16); });
    colorWell->setAccessibleName(caption);
    colorWell->setToolTip(tr("%1: choose a color and how opaque it is").arg(caption));
    place(colorWell, "colorWell", [](int w) { return QRect(w - 38, 0, 38, 24); });
    connect(colorWell, &ColorWell::colorTried, this, [this] { master->updateView(); });
}

// --- images ---

CIImage ParameterView::CIImageWithNSImage(const QImage& image) { return imageOfPicture(image); }

QImage ParameterView::CIImageToNSImageUsingRect(const CIImage& image, const CIRect& rect) const
{
    return pictureOfImage(image, rect);
}

ImageRow& ParameterView::addWell(const QString& name, ValueBinding value)
{
    ImageRow& row = keep(new ImageRow(this, *master, std::move(value)));
    row.well->setAccessibleName(name);
    place(row.well, "imageView", [](int) { return QRect(80, 0, 48, 44); });
    row.button->setText(tr("Choose"));
    row.button->setFont(rowFont(font()));
    row.button->setProperty("mini", true);
    row.button->setAccessibleName(tr("Choose %1").arg(name));
    row.button->setToolTip(tr("Opens a picture file for %1").arg(name));
    place(row.button, "pushButton", [](int) { return QRect(135, 13, 75, 16); });
    return row;
}

void ParameterView::addImageWellForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    ValueBinding value = bind(newFilter, newKey, newMaster);
    addCaption(keyCaption(), "labelTextField", [](int) { return QRect(0, 10, 75, 16); });
    addWell(keyCaption(), std::move(value));
}

void ParameterView::addImageWellForImageTagMaster(const CIImage& image, int tag, ParameterMaster& newMaster)
{
    master = &newMaster;
    const ImageRow& row = addWell(tr("Image"),
        {.get = [image] { return image; }, .set = [&newMaster](const CIValue&) { newMaster.updateView(); }});
    for (QWidget* part : {static_cast<QWidget*>(row.well), static_cast<QWidget*>(row.button)})
        part->setProperty("tag", tag);
    disconnect(row.well, nullptr, &row, nullptr); // nobody wants to know what was dropped
    connect(row.well, &DropImageView::imageDropped, this, &ParameterView::imageLayerImageWellChanged);
}
