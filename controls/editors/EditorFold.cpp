#include "controls/editors/EditorFold.h"

#include "controls/panel/ParameterText.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/TintedIcon.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr int kLine = 22, kArrow = 12, kGap = 4; // points

} // namespace

FoldButton::FoldButton(const QString& title, QWidget* parent)
    : QAbstractButton(parent)
{
    setText(title);
    setAccessibleName(title);
    setCheckable(true);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setFont(rowFont(font()));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize FoldButton::sizeHint() const { return {kArrow + 3 * kGap + fontMetrics().horizontalAdvance(text()), kLine}; }

void FoldButton::paintEvent(QPaintEvent*)
{
    const Look& look = Appearance::shared().look();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus() || underMouse()) {
        painter.setPen(hasFocus() ? QPen(look.accentMark, 1) : QPen(Qt::NoPen));
        painter.setBrush(underMouse() ? look.hover : QColor(Qt::transparent));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    }
    static const QIcon closed = tintedIcon(QStringLiteral("chevron-right")),
                       open = tintedIcon(QStringLiteral("chevron-down"));
    const QRect arrow(kGap, (height() - kArrow) / 2, kArrow, kArrow);
    (isChecked() ? open : closed).paint(&painter, arrow);
    painter.setPen(look.secondaryText);
    const QRect place = rect().adjusted(arrow.right() + kGap, 0, -kGap, 0);
    painter.drawText(
        place, Qt::AlignVCenter | Qt::AlignLeft, fontMetrics().elidedText(text(), Qt::ElideRight, place.width()));
}

void FoldButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Right || event->key() == Qt::Key_Left)
        setChecked(event->key() == Qt::Key_Right);
    else
        QAbstractButton::keyPressEvent(event);
}

EditorFold::EditorFold(const EditorEntry& entry, EditedInput input, bool startsOpen, QWidget* parent)
    : QWidget(parent)
    , m_entry(entry)
    , m_input(std::move(input))
    , m_button(new FoldButton(entry.shownTitle(), this))
{
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins({});
    lines->setSpacing(2);
    lines->addWidget(m_button);
    m_button->setObjectName(QStringLiteral("editorFold"));
    connect(m_button, &QAbstractButton::toggled, this, &EditorFold::open);
    m_button->setChecked(startsOpen);
}

int EditorFold::heightFor(int width) const
{
    return layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width) : layout()->totalSizeHint().height();
}

void EditorFold::open(bool open)
{
    if (open && !m_editor) {
        m_editor = m_entry.make(m_input, this);
        m_editor->setAccessibleName(m_button->text());
        layout()->addWidget(m_editor);
        connect(m_editor, &InputEditor::edited, this, &EditorFold::edited);
        QWidget* before = m_button;
        for (QWidget* control : controls())
            if (control != m_button)
                QWidget::setTabOrder(std::exchange(before, control), control);
    } else if (open) {
        m_editor->showValues();
    }
    m_editor->setVisible(open);
    m_button->setToolTip(open ? tr("Closes the editor") : tr("Opens an editor for these values"));
    emit toggled(open);
    emit resized();
}

void EditorFold::showValues()
{
    if (isOpen())
        m_editor->showValues();
}

std::vector<QWidget*> EditorFold::controls() const
{
    std::vector<QWidget*> found{m_button};
    if (m_editor && isOpen())
        for (QWidget* part : m_editor->findChildren<QWidget*>())
            if (part->focusPolicy() & Qt::TabFocus && part->window() == window()) // menus are windows
                found.push_back(part);
    return found;
}

bool EditorFold::event(QEvent* event)
{
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest)
        emit resized();
    return done;
}
