#include "controls/panel/FilterView.h"

#include "controls/panel/CaptionLabel.h"
#include "controls/panel/ParameterView.h"

#include <QPainter>

namespace {

constexpr double kBorderCorner = 4;
constexpr int kFilterHeader = 10; // points above the first row
constexpr int kMeasuredHeader = 46; // above the first row while measuring, and below a caption
constexpr int kTrim = 3;
constexpr int kBottomMargin = 12;

} // namespace

// --- boxes ---

MyBorderView::MyBorderView(QWidget* parent)
    : QWidget(parent)
    , bgColor(Qt::gray)
{
}

void MyBorderView::setBorderColor(const QColor& color)
{
    bgColor = color;
    update();
}

void MyBorderView::setLineWidth(float width)
{
    lineWidth = width;
    update();
}

void MyBorderView::drawBorder()
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(bgColor, double(lineWidth)));
    const double inset = double(lineWidth) / 2; // all of the line is inside
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), kBorderCorner, kBorderCorner);
}

void EffectStackBox::paintEvent(QPaintEvent*)
{
    const QWidget* first = findChild<QWidget*>({}, Qt::FindDirectChildrenOnly);
    if (first && first->findChild<QWidget*>({}, Qt::FindDirectChildrenOnly))
        drawBorder();
}

FilterView::FilterView(QWidget* parent)
    : EffectStackBox(parent)
{
    setGeometry(parent->rect());
    controlTopPosition = height();
}

// --- measuring ---

void FilterView::tryFilterHeader(const Filter&) { controlTopPosition = height() - kMeasuredHeader; }
void FilterView::trySliderForFilterKey(const Filter&, const std::string&) { place(RowKind::Slider, width()); }
void FilterView::tryCheckBoxForFilterKey(const Filter&, const std::string&) { place(RowKind::CheckBox, width()); }
void FilterView::tryColorWellForFilterKey(const Filter&, const std::string&) { place(RowKind::ColorWell, width()); }
void FilterView::tryImageWellForFilterKey(const Filter&, const std::string&) { place(RowKind::ImageWell, width()); }
void FilterView::tryTransformForFilterKey(const Filter&, const std::string&) { place(RowKind::Transform, width()); }
void FilterView::tryVectorForFilterKey(const Filter&, const std::string&) { place(RowKind::Vector, width()); }
void FilterView::tryOffsetForFilterKey(const Filter&, const std::string&) { place(RowKind::Offset, width()); }
void FilterView::tryImageWellForImageTag(const CIImage&, int) { place(RowKind::ImageWell, width()); }
void FilterView::tryImageHeader(const CIImage&) { controlTopPosition = height() - kMeasuredHeader; }
void FilterView::tryTextHeader(const QString&) { controlTopPosition = height() - kMeasuredHeader; }
void FilterView::trySliderForText() { place(RowKind::Slider, width()); }

void FilterView::trimBox()
{
    controlTopPosition -= kTrim;
    setGeometry(geometry());
    lastControlType = RowKind::None;
}

// --- placing ---

void FilterView::setTopFrame(QWidget& widget, const QRect& frame) const
{
    widget.setGeometry(frame.x(), height() - frame.y() - frame.height(), std::max(0, frame.width()), frame.height());
}

void FilterView::addRow(RowKind kind, const std::function<void(ParameterView&)>& build)
{
    auto* row = new ParameterView(this);
    m_rows.push_back({kind, row});
    setTopFrame(*row, place(kind, width()));
    build(*row);
    row->show();
}

void FilterView::addRow(RowKind kind, const Filter& rowFilter, const std::string& key, Builder builder)
{
    addRow(kind, [&](ParameterView& row) { (row.*builder)(rowFilter, key, *master); });
}

void FilterView::addFilterHeaderTagEnabled(const Filter&, int, bool)
{
    m_headerHeight = kFilterHeader;
    controlTopPosition = height() - m_headerHeight;
}

void FilterView::addSliderForFilterKey(const Filter& rowFilter, const std::string& key)
{
    addRow(RowKind::Slider, rowFilter, key, &ParameterView::addSliderForFilterKeyMaster);
}

void FilterView::addCheckBoxForFilterKey(const Filter& rowFilter, const std::string& key)
{
    addRow(RowKind::CheckBox, rowFilter, key, &ParameterView::addCheckBoxForFilterKeyMaster);
}

void FilterView::addColorWellForFilterKey(const Filter& rowFilter, const std::string& key)
{
    addRow(RowKind::ColorWell, rowFilter, key, &ParameterView::addColorWellForFilterKeyMaster);
}

void FilterView::addImageWellForFilterKey(const Filter& rowFilter, const std::string& key)
{
    addRow(RowKind::ImageWell, rowFilter, key, &ParameterView::addImageWellForFilterKeyMaster);
}

void FilterView::addTransformForFilterKey(const Filter& rowFilter, const std::string& key)
{
    addRow(RowKind::Transform, rowFilter, key, &ParameterView::addTransformForFilterKeyMaster);
}

void FilterView::addVectorForFilterKey(const Filter& rowFilter, const std::string& key)
{
    addRow(RowKind::Vector, rowFilter, key, &ParameterView::addVectorForFilterKeyMaster);
}

void FilterView::addOffsetForFilterKey(const Filter& rowFilter, const std::string& key)
{
    addRow(RowKind::Offset, rowFilter, key, &ParameterView::addOffsetForFilterKeyMaster);
}

void FilterView::addImageWellForImageTag(const CIImage& image, int imageTag)
{
    addRow(
        RowKind::ImageWell, [&](ParameterView& row) { row.addImageWellForImageTagMaster(image, imageTag, *master); });
}

void FilterView::addSliderForTextKeyLoHi(
    const std::shared_ptr<CIDictionary>& dictionary, const std::string& key, float lo, float hi)
{
    addRow(RowKind::Slider,
        [&](ParameterView& row) { row.addSliderForTextKeyLoHiMaster(dictionary, key, lo, hi, *master); });
}

void FilterView::addTextViewForStringKey(const QString&, const std::string&) { }

void FilterView::addHeaderCaption(const QString& text)
{
    auto* caption = new CaptionLabel(text, this);
    caption->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_headerCaption = caption;
    m_headerHeight = kMeasuredHeader;
    setTopFrame(*caption, {controlLeftPosition, height() - 38, width() - 125, 22});
    caption->show();
    controlTopPosition = height() - m_headerHeight;
}

void FilterView::addImageHeaderFilenameTagEnabled(const CIImage&, const QString& filename, int, bool)
{
    addHeaderCaption(filename);
}

void FilterView::addTextHeaderTagEnabled(const QString&, int, bool) { addHeaderCaption(tr("Text")); }

void FilterView::resizeEvent(QResizeEvent*)
{
    controlTopPosition = height() - m_headerHeight;
    lastControlType = RowKind::None;
    for (const Row& row : m_rows)
        setTopFrame(*row.widget, place(row.kind, width()));
    if (m_headerCaption)
        setTopFrame(*m_headerCaption, {controlLeftPosition, height() - 38, width() - 125, 22});
}

// --- the rows of a filter ---

struct FilterView::Pass {
    RowKind kind;
    RowOperation attempt, add;
};

void FilterView::forEachRow(RowOperation Pass::*operation)
{
    static constexpr Pass passes[] = {
        {RowKind::Slider, &FilterView::trySliderForFilterKey, &FilterView::addSliderForFilterKey},
        {RowKind::CheckBox, &FilterView::tryCheckBoxForFilterKey, &FilterView::addCheckBoxForFilterKey},
        {RowKind::ColorWell, &FilterView::tryColorWellForFilterKey, &FilterView::addColorWellForFilterKey},
        {RowKind::ImageWell, &FilterView::tryImageWellForFilterKey, &FilterView::addImageWellForFilterKey},
        {RowKind::Transform, &FilterView::tryTransformForFilterKey, &FilterView::addTransformForFilterKey},
        {RowKind::Vector, &FilterView::tryVectorForFilterKey, &FilterView::addVectorForFilterKey},
        {RowKind::Offset, &FilterView::tryOffsetForFilterKey, &FilterView::addOffsetForFilterKey},
    };
    const bool background = hasBackgroundImage(*filter);
    for (const std::string& key : filter->inputKeys()) {
        const CIInputAttributes* input = filter->attributesForKey(key);
        if (!input)
            continue;
        const RowKind kind = rowKindOf(*input, background);
        for (const Pass& pass : passes)
            if (pass.kind == kind)
                (this->*(pass.*operation))(filter, key);
    }
}

void FilterView::tryRows() { forEachRow(&Pass::attempt); }

void FilterView::addRows() { forEachRow(&Pass::add); }

int FilterView::contentHeight() const { return height() - controlTopPosition + kBottomMargin; }

std::vector<QWidget*> FilterView::controls() const
{
    std::vector<QWidget*> found;
    for (const Row& row : m_rows)
        for (QWidget* part : row.widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            if (part->focusPolicy() & Qt::TabFocus)
                found.push_back(part);
    return found;
}
