// What the window says at its bottom, without the rest of it.
#include "app/window/StatusRow.h"
#include "app/document/Document.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

class StatusRowTest : public testing::Test {
protected:
    StatusRowTest()
    {
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* part : std::initializer_list<QWidget*>{&edit, &other, &field, &bar, &cancel})
            layout->addWidget(part);
        window.setFocusPolicy(Qt::StrongFocus);
        bar.hide();
        cancel.hide();
        window.show();
        edit.setFocus();
    }

    QWidget window;
    QLineEdit& edit = *new QLineEdit;
    QLineEdit& other = *new QLineEdit;
    QLabel& field = *new QLabel;
    QProgressBar& bar = *new QProgressBar;
    QToolButton& cancel = *new QToolButton;
    Document document{&window};
    StatusRow row{document, {window, field, bar, cancel}};
};

TEST_F(StatusRowTest, ShowsProgressAndGivesTheKeyboardBack)
{
    row.showProgress("Opening…", [] { return 0.5; });
    EXPECT_EQ(field.text(), "Opening…");
    EXPECT_TRUE(bar.isVisible() && cancel.isVisible());
    EXPECT_EQ(bar.value() - bar.minimum(), (bar.maximum() - bar.minimum()) / 2);
    EXPECT_FALSE(edit.hasFocus());
    document.setPicture(CIImage::fromBitmap(CIBitmap(30, 20)));
    row.update();
    EXPECT_EQ(field.text(), "Opening…") << "it goes on";
    row.endProgress();
    EXPECT_EQ(field.text(), "30 × 20 px · sRGB 8-bit");
    EXPECT_FALSE(bar.isVisible() || cancel.isVisible());
    EXPECT_EQ(window.focusWidget(), &edit);

    row.showProgress("Opening…", [] { return 0.0; });
    other.setFocus();
    emit document.message("The rest is missing.");
    row.endProgress();
    EXPECT_EQ(field.text(), "The rest is missing.");
    EXPECT_EQ(window.focusWidget(), &other) << "the user has gone on";
}

} // namespace
