#include "controls/panel/FilterView.h"

#include "controls/editors/EditorFold.h"
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

FilterView::FilterView(QWidget* parent, OpenFolds openFolds)
    : EffectStackBox(parent)
    , m_openFolds(std::move(openFolds))
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
    setTopFrame(*row, placeRow(m_rows.back()));
    build(*row);
    connect(row, &ParameterView::edited, this, [this, row] { showValuesBeside(*row); });
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

QRect FilterView::placeRow(const Row& row)
{
    if (const auto* fold = qobject_cast<const EditorFold*>(row.widget))
        return placeFold(fold->heightFor(foldWidth(width())), width());
    return place(row.kind, width());
}

void FilterView::placeRows()
{
    controlTopPosition = height() - m_headerHeight;
    lastControlType = RowKind::None;
    for (const Row& row : m_rows)
        setTopFrame(*row.widget, placeRow(row));
}

void FilterView::resizeEvent(QResizeEvent*)
{
    placeRows();
    if (m_headerCaption)
        setTopFrame(*m_headerCaption, {controlLeftPosition, height() - 38, width() - 125, 22});
}

// --- the rows of a filter ---

void FilterView::forEachRow(const std::function<void(RowKind kind, const std::string& key)>& act)
{
    const bool background = hasBackgroundImage(*filter);
    for (const std::string& key : filter->inputKeys())
        if (const CIInputAttributes* input = filter->attributesForKey(key))
            act(rowKindOf(*input, background), key);
}

void FilterView::tryRows()
{
    forEachRow([this](RowKind kind, const std::string&) {
        if (kind != RowKind::None)
            measure(kind);
    });
}

void FilterView::addRows()
{
    forEachRow([this](RowKind kind, const std::string& key) {
        if (kind != RowKind::None)
            addRow(kind, filter, key);
        addFold(key);
    });
}

// --- editors under the rows ---

void FilterView::addFold(const std::string& key)
{
    const EditorEntry* entry = editorFor(*filter, *filter->attributesForKey(key));
    if (!entry)
        return;
    const std::string name = filter->name() + "/" + key;
    auto* fold = new EditorFold(*entry, {filter, key, *master}, m_openFolds->contains(name), this);
    m_rows.push_back({RowKind::None, fold});
    setTopFrame(*fold, placeRow(m_rows.back()));
    fold->show();
    connect(fold, &EditorFold::resized, this, &FilterView::foldResized);
    connect(fold, &EditorFold::edited, this, [this, fold] { showValuesBeside(*fold); });
    connect(fold, &EditorFold::toggled, this, [open = m_openFolds, name](bool isOpen) {
        if (isOpen)
            open->insert(name);
        else
            open->erase(name);
    });
}

void FilterView::foldResized()
{
    placeRows();
    setMinimumHeight(contentHeight());
}

void FilterView::showValuesBeside(const QWidget& edited)
{
    const bool byRow = qobject_cast<const ParameterView*>(&edited);
    for (const Row& row : m_rows) {
        auto* fold = qobject_cast<EditorFold*>(row.widget);
        if (fold && fold != &edited)
            fold->showValues();
        else if (!fold && !byRow) // rows of other inputs show what they did
            static_cast<ParameterView*>(row.widget)->showValue();
    }
}

int FilterView::contentHeight() const { return height() - controlTopPosition + kBottomMargin; }

std::vector<QWidget*> FilterView::controls() const
{
    std::vector<QWidget*> found;
    for (const Row& row : m_rows)
        if (const auto* fold = qobject_cast<const EditorFold*>(row.widget))
            for (QWidget* part : fold->controls())
                found.push_back(part);
        else
            for (QWidget* part : row.widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
                if (part->focusPolicy() & Qt::TabFocus)
                    found.push_back(part);
    return found;
}
