#include "widgets/AlertPanel.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

class AlertPanelTest : public testing::Test {
protected:
    AlertPanelTest()
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    /// Asks, and does `act` to the panel once it is there.
    static int answer(const std::function<int()>& ask, const std::function<void(QWidget&)>& act)
    {
        QTimer::singleShot(0, [&] {
            QWidget* panel = QApplication::activeModalWidget();
            ASSERT_TRUE(panel);
            act(*panel);
        });
        return ask();
    }

    static QStringList titles(const QWidget& panel)
    {
        QStringList shown;
        for (const char* name : {"m_first", "m_second", "m_three"})
            if (const auto* button = panel.findChild<QPushButton*>(name); button && button->isVisible())
                shown << button->text();
        return shown;
    }

    QWidget window;
};

TEST_F(AlertPanelTest, ButtonsShowTheirTitlesAndAnswerTheirNumbers)
{
    using Ask = int (*)(QWidget*, const QString&, const QString&);
    const struct {
        Ask ask;
        QStringList titles;
    } cases[] = {
        {AlertPanel::Alert_YESNOMsgText, {"Yes", "No"}},
        {AlertPanel::Alert_YESNOCancelMsgText, {"Yes", "No", "Cancel"}}, {AlertPanel::Alert_OKMsgText, {"OK"}},
        {AlertPanel::Alert_OKCancelMsgText, {"OK", "Cancel"}},
        {AlertPanel::Alert_SAVECANCELMsgText, {"Save...", "Cancel"}},
        {AlertPanel::Alert_DONTSAVECANCELMsgText, {"Save...", "Cancel", "Don't Save"}},
        {AlertPanel::Alert_YESNOCancelMsgText, {"Save...", "Cancel", "Don't Save"}}, // titles carry over
    };
    const char* const names[] = {"m_first", "m_second", "m_three"};
    for (const auto& [ask, expected] : cases)
        for (int number = 1; number <= expected.size(); ++number) {
            SCOPED_TRACE(expected.join(' ').toStdString());
            const int pressed = answer([&, ask = ask] { return ask(&window, "Really?", "It matters."); },
                [&, expected = expected](QWidget& panel) {
                    EXPECT_EQ(titles(panel), expected);
                    EXPECT_EQ(panel.findChild<QLabel*>("m_message")->text(), "Really?");
                    EXPECT_EQ(panel.findChild<QLabel*>("m_text")->text(), "It matters.");
                    EXPECT_EQ(panel.windowModality(), Qt::WindowModal);
                    panel.findChild<QPushButton*>(names[number - 1])->click();
                });
            EXPECT_EQ(pressed, number);
        }
}

TEST_F(AlertPanelTest, KeysAnswer)
{
    const auto press = [](Qt::Key key, const char* focused = nullptr) {
        return [key, focused](QWidget& panel) {
            QWidget* target = &panel;
            if (focused) {
                target = panel.findChild<QPushButton*>(focused);
                target->setFocus();
            }
            QTest::keyClick(target, key);
        };
    };
    const auto three = [&] { return AlertPanel::Alert_DONTSAVECANCELMsgText(&window, "a", {}); };
    EXPECT_EQ(answer(three, press(Qt::Key_Return)), 1);
    EXPECT_EQ(answer(three, press(Qt::Key_Enter)), 1);
    EXPECT_EQ(answer(three, press(Qt::Key_Return, "m_second")), 1) << "whatever has the focus";
    EXPECT_EQ(answer(three, press(Qt::Key_Space, "m_three")), 3);
    EXPECT_EQ(answer(three, press(Qt::Key_Escape)), 2);
    EXPECT_EQ(answer([&] { return AlertPanel::Alert_OKMsgText(&window, "a", "b"); }, press(Qt::Key_Escape)), 1);
}

TEST(AlertPanelInCode, KeepsItsPlaces)
{
    QWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QTimer::singleShot(0, [] {
        QWidget* panel = QApplication::activeModalWidget();
        ASSERT_TRUE(panel);
        EXPECT_EQ(panel->size(), QSize(490, 132));
        QPushButton* first = nullptr;
        for (QPushButton* button : panel->findChildren<QPushButton*>())
            if (button->text() == "OK")
                first = button;
        ASSERT_TRUE(first);
        EXPECT_EQ(first->geometry(), QRect(375, 88, 96, 32));
        first->click();
    });
    EXPECT_EQ(AlertPanel::AlertSheetModalMsgTextButtons(&window, "a", "b", AlertPanel::FirstOK), 1);
}

} // namespace
