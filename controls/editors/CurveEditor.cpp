#include "controls/editors/CurveEditor.h"

#include "controls/panel/ParameterText.h"
#include "controls/picture/HistogramView.h"
#include "controls/picture/PictureConversion.h"
#include "platform/chain/FilterChain.h"
#include "platform/coreimage/CIContext.h"
#include "platform/foundation/Appearance.h"

#include <algorithm>
#include <cmath>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace {

constexpr int kLevels = 256;
constexpr double kCountedSide = 256; // pixels of the picture that is counted

CIImage greys()
{
    CIBitmap bitmap(kLevels, 1, CIFormat::RGBA8, CIAlpha::Opaque);
    const std::span<std::uint8_t> row = bitmap.mutableRow<std::uint8_t>(0);
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] = i % 4 == 3 ? 255 : std::uint8_t(i / 4);
    return CIImage::fromBitmap(bitmap);
}

/// What the filter makes of all greys: one curve for each color.
std::array<std::vector<double>, 3> response(const CIFilter& filter)
{
    std::array<std::vector<double>, 3> curves;
    const std::shared_ptr<CIFilter> copy = CIFilter::filterWithName(filter.name());
    for (const std::string& key : filter.inputKeys())
        copy->setValueForKey(filter.valueForKey(key), key);
    copy->setValueForKey(greys(), pictureKey(filter));
    const CIBitmap result = CIContext().render(copy->outputImage(), {0, 0, kLevels, 1});
    if (result.isNull())
        return curves;
    const std::span<const std::uint8_t> row = result.row<std::uint8_t>(0);
    for (std::size_t i = 0; i < row.size(); ++i)
        if (i % 4 < 3)
            curves[i % 4].push_back(row[i] / 255.0);
    return curves;
}

} // namespace

CurveEditor::CurveEditor(const EditedInput& input, std::vector<std::string> keys, QWidget* parent)
    : InputEditor(input, parent)
    , m_keys(std::move(keys))
{
}

void CurveEditor::build(bool hasChannels)
{
    m_canvas = new CurveCanvas(this);
    m_canvas->setObjectName(QStringLiteral("curve"));
    m_canvas->setAccessibleName(tr("Curve"));
    m_canvas->setToolTip(tr("Drag the points, or go to them by Tab and move them by the arrow keys.\n"
                            "A double click or Delete brings a point back."));
    m_description = new QLabel(this);
    m_description->setFont(rowFont(font()));
    m_description->setForegroundRole(QPalette::PlaceholderText);
    auto* reset = new QPushButton(tr("Reset"), this);
    reset->setFont(rowFont(font()));
    reset->setProperty("mini", true);
    reset->setAutoDefault(false);
    reset->setToolTip(tr("Brings all points back"));

    auto* line = new QHBoxLayout;
    line->setSpacing(4);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 2, 0, 8);
    all->setSpacing(4);
    if (hasChannels) {
        auto* channels = new QHBoxLayout;
        addChannels(*channels);
        all->addLayout(channels);
    }
    all->addWidget(m_canvas);
    all->addLayout(line);
    line->setContentsMargins(6, 0, 6, 0);
    line->addWidget(m_description, 1);
    line->addWidget(reset);

    connect(m_canvas, &CurveCanvas::began, this, [this] { beginChange(); });
    connect(m_canvas, &CurveCanvas::moved, this, &CurveEditor::move);
    connect(m_canvas, &CurveCanvas::ended, this, [this] { endChange(); });
    connect(m_canvas, &CurveCanvas::resetWanted, this, &CurveEditor::resetPoint);
    connect(m_canvas, &CurveCanvas::selectionChanged, this, &CurveEditor::describe);
    connect(reset, &QPushButton::clicked, this, &CurveEditor::resetAll);
    connect(&Appearance::shared(), &Appearance::changed, this, &CurveEditor::showValues);
    showValues();
}

void CurveEditor::addChannels(QHBoxLayout& line)
{
    line.setContentsMargins(6, 0, 6, 0);
    line.setSpacing(4);
    m_channel = new QButtonGroup(this);
    const QString names[] = {tr("All"), tr("Red"), tr("Green"), tr("Blue")};
    for (int i = 0; i < 4; ++i) {
        auto* button = new QToolButton(this);
        button->setText(names[i]);
        button->setFont(rowFont(font()));
        button->setCheckable(true);
        button->setChecked(i == 0);
        button->setFocusPolicy(Qt::TabFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setFixedHeight(24);
        button->setToolTip(
            i == 0 ? tr("The curves of all colors are edited") : tr("The curve of this color is edited"));
        m_channel->addButton(button, i);
        line.addWidget(button);
    }
    connect(m_channel, &QButtonGroup::idClicked, this, &CurveEditor::showValues);
}

// --- showing ---

std::vector<std::size_t> CurveEditor::channels() const
{
    if (!m_channel)
        return {0};
    const int chosen = m_channel->checkedId();
    return chosen == 0 ? std::vector<std::size_t>{0, 1, 2} : std::vector<std::size_t>{std::size_t(chosen - 1)};
}

/// In the middle between the channels.
CurveEditor::Points CurveEditor::shownPoints() const
{
    const std::vector<std::size_t> edited = channels();
    Points middle;
    for (std::size_t channel : edited) {
        const Points own = points(channel);
        middle.resize(own.size());
        for (std::size_t i = 0; i < own.size(); ++i)
            middle[i] += own[i] / double(edited.size());
    }
    return middle;
}

std::vector<CurveCanvas::Line> CurveEditor::lines() const
{
    std::array<std::vector<double>, 3> curves = response(*m_input.filter);
    if (!m_channel || (curves[0] == curves[1] && curves[1] == curves[2]))
        return {{curves[0], Appearance::shared().look().text}};
    const std::vector<std::size_t> edited = channels();
    std::vector<CurveCanvas::Line> lines;
    for (std::size_t i = 0; i < 3; ++i)
        lines.push_back({curves[i], channelColors()[i], std::ranges::count(edited, i) > 0});
    std::ranges::stable_partition(lines, [](const CurveCanvas::Line& line) { return !line.isEdited; }); // on top
    return lines;
}

void CurveEditor::countLevels()
{
    const CIImage picture = m_input.master.backImage();
    if (picture == m_counted)
        return;
    m_counted = picture;
    const CIRect extent = picture ? picture.extent() : CIRect();
    const double scale = std::min(1.0, kCountedSide / std::max(extent.width, extent.height));
    m_histogram = extent.isEmpty() || extent.isInfinite()
        ? Histogram()
        : histogramOf(pictureOfImage(picture, extent, scale).convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

void CurveEditor::showValues()
{
    countLevels();
    const std::vector<std::size_t> edited = channels();
    const QColor color =
        m_channel && edited.size() == 1 ? channelColors()[edited[0]] : Appearance::shared().look().text;
    const Histogram::Levels* const levels[] = {&m_histogram.red, &m_histogram.green, &m_histogram.blue};
    const bool isGrey = !m_channel || edited.size() > 1;
    m_canvas->setHistogram(
        isGrey ? m_histogram.luma : *levels[edited[0]], isGrey ? Appearance::shared().look().secondaryText : color);
    m_canvas->setLines(lines());
    m_canvas->setPoints(shownPoints(), color);
    describe();
}

void CurveEditor::describe()
{
    const std::optional<std::size_t> selected = m_canvas->selected();
    m_description->setText(selected ? tr("%1 % becomes %2 %", "a brightness and what a curve makes of it")
                                          .arg(std::lround(m_canvas->points()[*selected].x() * 100))
                                          .arg(std::lround(m_canvas->points()[*selected].y() * 100))
                                    : QString());
}

// --- editing ---

void CurveEditor::move(std::size_t index, const QPointF& to)
{
    const Points middle = shownPoints();
    const QPointF way = allowed(middle, index, to) - middle[index];
    for (std::size_t channel : channels()) {
        Points moved = points(channel);
        moved[index] += way;
        setPoints(channel, moved);
    }
    showValues();
}

void CurveEditor::resetPoint(std::size_t index)
{
    beginChange();
    for (std::size_t channel : channels()) {
        Points moved = points(channel);
        moved[index] = standardPoint(index);
        if (moved != points(channel))
            setPoints(channel, moved);
    }
    endChange();
    showValues();
}

void CurveEditor::resetAll()
{
    beginChange();
    for (const std::string& key : m_keys)
        if (const CIValue standard = binding(key).standard(); !(standard == value(key)))
            setValue(key, standard);
    endChange();
    showValues();
}
