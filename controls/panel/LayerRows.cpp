#include "controls/panel/LayerRows.h"

#include "controls/panel/CaptionLabel.h"
#include "controls/panel/InputBinding.h"
#include "controls/panel/ParameterText.h"
#include "platform/chain/Layers.h"
#include "widgets/ColorWell.h"
#include "widgets/PanelPopUp.h"
#include "widgets/ReadoutField.h"
#include "widgets/rows/ChoiceRow.h"
#include "widgets/rows/ColorRow.h"
#include "widgets/rows/NumberRow.h"
#include "widgets/rows/TextRow.h"
#include "widgets/ValueSlider.h"

#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QMenu>
#include <QPushButton>

namespace {

constexpr int kCaptionWidth = 90, kReadoutWidth = 43, kSpacing = 4; // points, as the rows of inputs have them
constexpr int kTextLines = 3, kMessageLines = 2;

/// An entry of a text with attributes, which may also be a mere string.
ValueBinding part(const ValueBinding& whole, const std::string& name, const CIValue& standard)
{
    const auto entries = [whole] {
        CIDictionary found = whole.get().toDictionary();
        if (whole.get().isString())
            found["text"] = whole.get();
        return found;
    };
    const auto with = [=](const CIValue& value) {
        CIDictionary changed = entries();
        changed[name] = value;
        return CIValue(changed);
    };
    ValueBinding binding = whole;
    binding.get = [=] {
        const CIDictionary all = entries();
        const auto found = all.find(name);
        return found == all.end() ? standard : found->second;
    };
    binding.set = [=](const CIValue& value) { whole.set(with(value)); };
    binding.standard = [standard] { return standard; };
    binding.preview = [=](const CIValue& value) { whole.preview(with(value)); };
    return binding;
}

/// One of several strings, by its index.
ValueBinding indexOf(const ValueBinding& text, const QStringList& choices)
{
    ValueBinding binding = text;
    const auto index = [choices](const CIValue& value) {
        return std::max(qsizetype(0), choices.indexOf(QString::fromStdString(value.toString())));
    };
    binding.get = [=] { return CIValue(int(index(text.get()))); };
    binding.set = [=](const CIValue& chosen) { text.set(choices.value(int(chosen.toDouble())).toStdString()); };
    binding.standard = [=] { return CIValue(int(index(text.standard()))); };
    return binding;
}

} // namespace

LayerRows::LayerRows(std::shared_ptr<CIFilter> filter, ParameterMaster& master, QWidget* parent)
    : QWidget(parent)
    , m_filter(std::move(filter))
    , m_master(master)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(2, 6, 16, 0);
    m_grid->setHorizontalSpacing(kSpacing);
    m_grid->setVerticalSpacing(kSpacing);
    m_grid->setColumnMinimumWidth(0, kCaptionWidth - kSpacing + 2);
    m_grid->setColumnStretch(1, 1);
}

ValueBinding LayerRows::bind(const std::string& key)
{
    ValueBinding binding = inputBinding(m_filter, key, m_master);
    binding.preview = [preview = binding.preview, &master = m_master](const CIValue& value) {
        preview(value);
        master.updateView();
    };
    return binding;
}

/// The first part fills the line.
void LayerRows::addRow(const QString& caption, const QString& tip, ValueRow& row, const std::vector<QWidget*>& parts)
{
    const int line = m_grid->rowCount();
    auto* label = new CaptionLabel(caption, this);
    label->setFixedWidth(kCaptionWidth - kSpacing);
    label->setFixedHeight(16);
    label->setToolTip(tr("%1\nA double click brings the standard value back").arg(tip));
    connect(label, &CaptionLabel::doubleClicked, &row, &ValueRow::reset);
    const bool isHigh = qobject_cast<TextField*>(parts.front());
    m_grid->addWidget(label, line, 0, isHigh ? Qt::AlignTop : Qt::AlignVCenter);
    m_captions.emplace_back(label, &row);
    for (int i = 0; i < int(parts.size()); ++i) {
        QWidget* part = parts[std::size_t(i)];
        part->setAccessibleName(caption);
        if (part->toolTip().isEmpty())
            part->setToolTip(tip);
        m_grid->addWidget(part, line, 1 + i, 1, i + 1 == int(parts.size()) ? 2 - i : 1);
        m_controls.push_back(part);
    }
}

void LayerRows::contextMenuEvent(QContextMenuEvent* event)
{
    for (const auto& [caption, row] : m_captions)
        if (caption->y() <= event->y() && event->y() < caption->y() + caption->height()) {
            auto* menu = new QMenu(this);
            menu->setAttribute(Qt::WA_DeleteOnClose);
            QAction* reset = menu->addAction(tr("Reset %1").arg(static_cast<CaptionLabel*>(caption)->fullText()));
            reset->setEnabled(row->canReset());
            connect(reset, &QAction::triggered, row, &ValueRow::reset);
            menu->popup(event->globalPos());
        }
}

// --- what is written ---

void LayerRows::addWriting()
{
    for (const std::string& key : m_filter->inputKeys()) {
        const CIInputAttributes& input = *m_filter->attributesForKey(key);
        const QString caption = captionText(input);
        if (input.kind == InputKind::AttributedString) {
            const ValueBinding text = bind(key);
            addText(caption, kTextLines, part(text, "text", ""));
            addFont(part(text, "fontName", "HelveticaNeue"));
            addNumber(tr("Font Size"), tr("How large the letters are, in points"), {.min = 9, .max = 128, .mark = 12},
                part(text, "fontSize", 12));
            addColor(part(text, "color", CIColor(0, 0, 0, 1)));
        } else if (key == "inputText") {
            addText(caption, kTextLines, bind(key));
        } else if (key == "inputFontName") {
            addFont(bind(key));
        } else if (key == "inputMessage") {
            addText(caption, m_filter->attributesForKey("inputQuietSpace") ? 1 : kMessageLines, bind(key));
        } else if (key == "inputCorrectionLevel" && input.kind == InputKind::String) {
            addCorrectionLevel();
        }
    }
    if (m_filter->attributesForKey("inputFontName")) {
        ValueBinding color = bind(kLayerColorKey);
        color.get = [noted = color.get] { return noted().isColor() ? noted() : CIValue(CIColor(0, 0, 0, 1)); };
        color.standard = [] { return CIColor(0, 0, 0, 1); };
        addColor(color);
    }
}

void LayerRows::addText(const QString& caption, int lines, ValueBinding value)
{
    auto* row = new TextRow(this, lines, std::move(value));
    row->field->setFont(rowFont(font()));
    row->field->setPlaceholderText(tr("Type here"));
    addRow(caption, tr("%1: what is written on the picture").arg(caption), *row, {row->field});
}

void LayerRows::addFont(ValueBinding value)
{
    static const QStringList families = [] {
        QStringList names = QFontDatabase::families();
        names.removeIf([](const QString& name) { return QFontDatabase::isPrivateFamily(name); });
        names.prepend(QStringLiteral("HelveticaNeue"));
        return names;
    }();
    QStringList titles = families;
    titles.first() = tr("Standard", "font");
    auto* row = new ChoiceRow(this, titles, indexOf(value, families));
    row->menu->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    row->menu->setMinimumContentsLength(6);
    row->menu->setMinimumWidth(60);
    row->menu->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    addRow(tr("Font"), tr("The family of letters"), *row, {row->menu});
}

void LayerRows::addColor(ValueBinding value)
{
    auto* row = new ColorRow(this, std::move(value));
    row->well->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    addRow(tr("Color"), tr("The color of the letters, and how opaque they are"), *row, {row->well});
}

void LayerRows::addCorrectionLevel()
{
    const QStringList levels{"L", "M", "Q", "H"};
    auto* row = new ChoiceRow(this, {tr("Low (7 %)"), tr("Medium (15 %)"), tr("Good (25 %)"), tr("High (30 %)")},
        indexOf(bind("inputCorrectionLevel"), levels));
    addRow(tr("Correction"), tr("How much of the code may be hidden or dirty"), *row, {row->menu});
}

void LayerRows::addNumber(const QString& caption, const QString& tip, const NumberLook& look, ValueBinding value)
{
    auto* row = new NumberRow(this, look, std::move(value));
    row->readout->setFixedSize(kReadoutWidth, 16);
    row->readout->setFont(rowFont(font()));
    row->readout->setProperty("bezeled", false);
    addRow(caption, tip, *row, {row->slider, row->readout});
}

// --- where it lies ---

void LayerRows::addPlaces()
{
    const std::vector<std::string> placed = placedInputs(*m_filter);
    for (const std::string& key : placed)
        addPlacing(key, placed.size() == 1 ? tr("Placing") : captionText(*m_filter->attributesForKey(key)));
    if (hasLayerAmount(*m_filter)) {
        constexpr double kAll = 100; // percent
        ValueBinding amount = bind(kLayerAmountKey);
        amount.get = [noted = amount.get] { return noted().isNumber() ? noted().toDouble() * kAll : kAll; };
        amount.set = [set = amount.set](const CIValue& percent) { set(percent.toDouble() / kAll); };
        amount.standard = [] { return CIValue(kAll); };
        addNumber(tr("Amount"), tr("How much of the result is seen, in percent"),
            {.min = 0, .max = kAll, .mark = kAll, .decimals = 0}, amount);
    }
    if (!placed.empty() || drawsLayer(*m_filter))
        addPlaceButtons();
}

void LayerRows::addPlacing(const std::string& key, const QString& caption)
{
    // As Placing has them.
    const QStringList titles{tr("Own Size"), tr("Fit"), tr("Fill"), tr("Stretch"), tr("Tile"), tr("Place")};
    ValueBinding placing = bind(placingKey(key));
    placing.standard = [standard = placing.standard] {
        return standard().isNumber() ? standard() : CIValue(int(Placing::Own));
    };
    placing.set = [this, key, set = placing.set](const CIValue& chosen) {
        const bool isFirst = m_filter->valueForKey(placeKey(key)).isNothing();
        m_master.beginChange();
        if (Placing(int(chosen.toDouble())) == Placing::Free && isFirst) {
            const CIRect own = m_filter->valueForKey(key).toImage().extent();
            if (const CIRect picture = m_master.getBgImageExtent(); !own.isEmpty() && !picture.isEmpty())
                m_master.setFilterValueForKey(
                    *m_filter, fittedPlace({own.width, own.height}, picture).vector(), placeKey(key));
        }
        set(chosen);
        m_master.endChange();
        showPlaceButtons();
    };
    auto* row = new ChoiceRow(this, titles, placing);
    addRow(caption,
        tr("How the second picture is brought onto the picture. Drag it where it is to be when it is placed "
           "or tiled"),
        *row, {row->menu});
}

void LayerRows::addPlaceButtons()
{
    m_placeButtons = new QWidget(this);
    auto* line = new QHBoxLayout(m_placeButtons);
    line->setContentsMargins({});
    line->setSpacing(kSpacing);
    const auto add = [&](const QString& title, const QString& tip, bool fits) {
        auto* button = new QPushButton(title, m_placeButtons);
        button->setFont(rowFont(font()));
        button->setProperty("mini", true);
        button->setAutoDefault(false);
        button->setToolTip(tip);
        connect(button, &QPushButton::clicked, this, [this, fits] { setPlaces(fits); });
        line->addWidget(button);
        m_controls.push_back(button);
    };
    add(tr("Center"), tr("Moves it to the middle of the picture"), false);
    add(tr("Fit"), tr("As large as it is seen whole, in the middle of the picture"), true);
    line->addStretch();
    m_grid->addWidget(m_placeButtons, m_grid->rowCount(), 1, 1, 2);
    showPlaceButtons();
}

void LayerRows::showPlaceButtons()
{
    if (m_placeButtons)
        m_placeButtons->setVisible(hasFreeLayers(*m_filter));
}

void LayerRows::setPlaces(bool fits)
{
    const CIRect picture = m_master.getBgImageExtent();
    m_master.beginChange();
    for (const FreeLayer& layer : freeLayers(*m_filter, picture)) {
        LayerPlace place = layer.place;
        place.center = picture.center();
        m_master.setFilterValueForKey(
            *m_filter, (fits ? fittedPlace(layer.size, picture) : place).vector(), layer.placeKey);
        m_master.setActionNameForFilterKey(*m_filter, layer.placeKey);
    }
    m_master.endChange();
    m_master.updateView();
}
