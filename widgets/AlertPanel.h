// Asks and tells the user everything.
#pragma once

#include <QDialog>
#include <QEventLoop>

class QLabel;
class QPushButton;

/// A sheet with a message, an explanation and up to three buttons. One panel serves the whole process: a button keeps
/// the title of an earlier alert unless the new one names it. Return and Enter press the first button; Escape presses
/// the one that is titled "Cancel", else the second, else the first.
///
/// The class operations block (events go on) and answer the number of the pressed button: 1 is the rightmost, 3 the
/// leftmost. Main thread only.
class AlertPanel : public QDialog {
    Q_OBJECT

public:
    /// May be combined.
    enum ButtonFlag {
        FirstOK = 1,
        First = 2, // shown with the title that it has
        Second = 4,
        SecondCancel = 8,
        Third = 16,
        FirstSave = 32,
        ThirdDontSave = 64,
        FirstReplace = 128
    };

    static int Alert_OKMsgText(QWidget* window, const QString& message, const QString& text);
    static int Alert_OKCancelMsgText(QWidget* window, const QString& message, const QString& text);
    static int Alert_YESNOMsgText(QWidget* window, const QString& message, const QString& text);
    static int Alert_YESNOCancelMsgText(QWidget* window, const QString& message, const QString& text);
    static int Alert_SAVECANCELMsgText(QWidget* window, const QString& message, const QString& text);
    static int Alert_DONTSAVECANCELMsgText(QWidget* window, const QString& message, const QString& text);
    /// With the panel of the interface file, which grows with its texts.
    static int AlertSheetModalResMsgTextButtons(
        QWidget* window, const QString& message, const QString& text, int buttons);
    /// With a panel of fixed places, where no other panel exists yet.
    static int AlertSheetModalMsgTextButtons(QWidget* window, const QString& message, const QString& text, int buttons);

    void setMessageText(const QString& message, const QString& text);
    void setButtons(int flags);
    /// Shows the panel as a sheet of the window until a button ends it; answers the code it ends with.
    int doSheetModal(QWidget* window);
    void endSheetModal(int code);
    void pressFirstButton() { endSheetModal(1); }
    void pressSecondButton() { endSheetModal(2); }
    void pressThreeButton() { endSheetModal(3); }

    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Layout { FromInterfaceFile, FixedPlaces };

    AlertPanel(QWidget* window, Layout layout);
    static int ask(QWidget* window, const QString& message, const QString& text, int buttons, Layout layout);
    void placeByHand();
    void placeByInterfaceFile();

    QPushButton *m_first, *m_second, *m_three;
    QLabel *m_message, *m_text, *m_icon;
    QEventLoop m_modalSession;
};
