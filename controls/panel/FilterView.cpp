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

void FilterView::measureHeader() { controlTopPosition = height() - kMeasuredHeader; }

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

void FilterView::addRow(RowKind kind, const Filter& of, const std::string& key)
{
    addRow(kind, [&](ParameterView& row) { row.addRowForFilterKeyMaster(kind, of, key, *master); });
}

void FilterView::addFilterHeaderTagEnabled(const Filter&, int, bool)
{
    m_headerHeight = kFilterHeader;
    controlTopPosition = height() - m_headerHeight;
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

void FilterView::forEachRow(const std::function<void(RowKind kind, const std::string& key)>& act)
{
    const bool background = hasBackgroundImage(*filter);
    for (const std::string& key : filter->inputKeys())
        if (const CIInputAttributes* input = filter->attributesForKey(key))
            if (const RowKind kind = rowKindOf(*input, background); kind != RowKind::None)
                act(kind, key);
}

void FilterView::tryRows()
{
    forEachRow([this](RowKind kind, const std::string&) { measure(kind); });
}

void FilterView::addRows()
{
    forEachRow([this](RowKind kind, const std::string& key) { addRow(kind, filter, key); });
}

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
