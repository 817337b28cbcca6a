#include "widgets/AlertPanel.h"

#include "ui_AlertPanel.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace {

constexpr int kContentWidth = 490, kContentHeight = 132;

/// From a place counted from the bottom left corner.
QRect placed(int x, int y, int width, int height) { return {x, kContentHeight - y - height, width, height}; }

} // namespace

AlertPanel::AlertPanel(QWidget* window, Layout layout)
    : QDialog(window, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
{
    setObjectName(QStringLiteral("AlertPanel"));
    setWindowTitle(QStringLiteral("Lumivex"));
    if (layout == Layout::FromInterfaceFile)
        placeByInterfaceFile();
    else
        placeByHand();
    m_first->setDefault(true);
    m_icon->setPixmap(
        QIcon(QStringLiteral(":/icons/io.github.lumivex.Lumivex.svg")).pixmap(QSize(64, 64), devicePixelRatioF()));
    connect(m_first, &QPushButton::clicked, this, &AlertPanel::pressFirstButton);
    connect(m_second, &QPushButton::clicked, this, &AlertPanel::pressSecondButton);
    connect(m_three, &QPushButton::clicked, this, &AlertPanel::pressThreeButton);
}

void AlertPanel::placeByInterfaceFile()
{
    Ui::AlertPanel ui;
    ui.setupUi(this);
    m_first = ui.m_first;
    m_second = ui.m_second;
    m_three = ui.m_three;
    m_message = ui.m_message;
    m_text = ui.m_text;
    m_icon = ui.m_icon;
}

void AlertPanel::placeByHand()
{
    const auto button = [this](const QString& title, const QRect& place) {
        auto* made = new QPushButton(title, this);
        made->setAutoDefault(false); // Return is the first button's, whatever has the focus
        made->setGeometry(place);
        return made;
    };
    const auto label = [this](const QRect& place) {
        auto* made = new QLabel(this);
        made->setTextFormat(Qt::PlainText);
        made->setWordWrap(true);
        made->setGeometry(place);
        return made;
    };
    m_icon = label(placed(10, 53, 70, 69));
    m_message = label(placed(100, 83, 374, 34));
    m_text = label(placed(100, 43, 374, 37));
    m_first = button(tr("Yes"), placed(375, 12, 96, 32));
    m_second = button(tr("No"), placed(279, 12, 96, 32));
    m_three = button(tr("Cancel"), placed(95, 12, 114, 32));
    setFixedSize(kContentWidth, kContentHeight);
}

int AlertPanel::Alert_OKMsgText(QWidget* window, const QString& message, const QString& text)
{
    return AlertSheetModalResMsgTextButtons(window, message, text, FirstOK);
}

int AlertPanel::Alert_OKCancelMsgText(QWidget* window, const QString& message, const QString& text)
{
    return AlertSheetModalResMsgTextButtons(window, message, text, FirstOK | SecondCancel);
}

int AlertPanel::Alert_YESNOMsgText(QWidget* window, const QString& message, const QString& text)
{
    return AlertSheetModalResMsgTextButtons(window, message, text, First | Second);
}

int AlertPanel::Alert_YESNOCancelMsgText(QWidget* window, const QString& message, const QString& text)
{
    return AlertSheetModalResMsgTextButtons(window, message, text, First | Second | Third);
}

int AlertPanel::Alert_SAVECANCELMsgText(QWidget* window, const QString& message, const QString& text)
{
    return AlertSheetModalResMsgTextButtons(window, message, text, FirstSave | SecondCancel);
}

int AlertPanel::Alert_DONTSAVECANCELMsgText(QWidget* window, const QString& message, const QString& text)
{
    return AlertSheetModalResMsgTextButtons(window, message, text, FirstSave | SecondCancel | ThirdDontSave);
}

int AlertPanel::AlertSheetModalResMsgTextButtons(
    QWidget* window, const QString& message, const QString& text, int buttons)
{
    return ask(window, message, text, buttons, Layout::FromInterfaceFile);
}

int AlertPanel::AlertSheetModalMsgTextButtons(QWidget* window, const QString& message, const QString& text, int buttons)
{
    return ask(window, message, text, buttons, Layout::FixedPlaces);
}

int AlertPanel::ask(QWidget* window, const QString& message, const QString& text, int buttons, Layout layout)
{
    static QPointer<AlertPanel> shared; // goes with the last window that it was a sheet of
    if (!shared)
        shared = new AlertPanel(window, layout);
    shared->setMessageText(message, text);
    shared->setButtons(buttons);
    return shared->doSheetModal(window);
}

void AlertPanel::setMessageText(const QString& message, const QString& text)
{
    m_message->setText(message);
    m_text->setText(text);
    setAccessibleName(message);
    setAccessibleDescription(text);
}

void AlertPanel::setButtons(int flags)
{
    if (flags & FirstOK)
        m_first->setText(tr("OK"));
    if (flags & FirstSave)
        m_first->setText(tr("Save..."));
    if (flags & FirstReplace)
        m_first->setText(tr("Replace"));
    if (flags & SecondCancel)
        m_second->setText(tr("Cancel"));
    if (flags & ThirdDontSave)
        m_three->setText(tr("Don't Save"));
    m_first->setVisible(flags & (FirstOK | First | FirstSave | FirstReplace));
    m_second->setVisible(flags & (Second | SecondCancel));
    m_three->setVisible(flags & (Third | ThirdDontSave));
}

int AlertPanel::doSheetModal(QWidget* window)
{
    if (parentWidget() != window)
        setParent(window, windowFlags());
    setWindowModality(Qt::WindowModal);
    adjustSize();
    show();
    m_first->setFocus();
    return m_modalSession.exec();
}

void AlertPanel::endSheetModal(int code)
{
    m_modalSession.exit(code);
    hide();
}

void AlertPanel::reject()
{
    QPushButton* cancels = nullptr;
    for (QPushButton* button : {m_first, m_second, m_three})
        if (button->isVisible() && (!cancels || button == m_second || button->text() == tr("Cancel")))
            cancels = button;
    if (cancels)
        cancels->click();
}

void AlertPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        pressFirstButton();
    else
        QDialog::keyPressEvent(event);
}
