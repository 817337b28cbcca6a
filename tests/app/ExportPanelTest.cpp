// Exporting as a person does it, in the real window.
#include "WindowFixture.h"

#include "files/ExportPanel.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/imageio/PictureReader.h"
#include "tests/support/Programs.h"
#include "tests/support/QuietLog.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

namespace {

constexpr int kPatience = 60'000; // ms, for a busy machine

class ExportPanelTest : public WindowTest {
protected:
    ExportPanelTest() { QDir(folder.path()).mkdir("Mixed Case"); }

    const QuietLog quiet;

    QString path(const QString& name) const { return folder.filePath("Mixed Case/" + name); }

    /// With changes that nobody has saved.
    void openPhoto(const QString& name)
    {
        QImage noise(120, 80, QImage::Format_RGB32);
        for (int y = 0; y < noise.height(); ++y)
            for (int x = 0; x < noise.width(); ++x)
                noise.setPixel(x, y, qRgb(x * 2, y * 3, (x * y * 7) % 256));
        ASSERT_TRUE(noise.save(path(name)));
        openPicture(path(name));
        pick("CIColorInvert");
        ASSERT_TRUE(controller.wasChanged());
    }
    ExportPanel& panel()
    {
        auto* found = window.findChild<ExportPanel*>();
        if (!found) {
            window.activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
            QTest::keySequence(&window, QKeySequence("Ctrl+Shift+E"));
            EXPECT_TRUE(QTest::qWaitFor([&] { return (found = window.findChild<ExportPanel*>()); }, kPatience));
            EXPECT_TRUE(QTest::qWaitForWindowActive(found)); // else fields don't take what is typed
        }
        return *found;
    }
    template <class Part>
    Part& part(const char* name)
    {
        auto* found = panel().findChild<Part*>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return *found;
    }
    void type(const char* field, const QString& text)
    {
        auto& line = part<QLineEdit>(field);
        line.setFocus();
        line.selectAll();
        QTest::keyClicks(&line, text);
    }
    void choose(const char* menu, const QString& text)
    {
        auto& box = part<QComboBox>(menu);
        ASSERT_GE(box.findText(text), 0) << text.toStdString();
        box.setCurrentIndex(box.findText(text));
    }
    void pressExport()
    {
        QTest::mouseClick(&part<QPushButton>("exportPanelBtn"), Qt::LeftButton);
        waitUntilIdle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    bool isPanelOpen() const { return window.findChild<ExportPanel*>(); }
    QString failure() { return part<QLabel>("messageLabel").isVisible() ? part<QLabel>("messageLabel").text() : ""; }

    QStringList files() const { return QDir(path({})).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
};

TEST_F(ExportPanelTest, WritesTheNameAsTypedIntoTheFolderThatWasChosen)
{
    openPhoto("photo.jpg");
    EXPECT_EQ(part<QLineEdit>("nameField").text(), "photo.jpg");
    EXPECT_EQ(part<QLineEdit>("folderField").text(), QDir::cleanPath(path({})));
    EXPECT_EQ(part<QComboBox>("exportFormatMenu").currentText(), "JPEG");
    type("nameField", "My HOLIDAY.PNG");
    EXPECT_EQ(part<QComboBox>("exportFormatMenu").currentText(), "PNG") << "the extension picks the format";
    pressExport();
    EXPECT_FALSE(isPanelOpen());
    EXPECT_EQ(files(), (QStringList{"My HOLIDAY.PNG", "photo.jpg"}));
    EXPECT_EQ(identify(path("My HOLIDAY.PNG")), "PNG 120 80");
    EXPECT_FALSE(controller.wasChanged());
    EXPECT_EQ(controller.getFilePath(), path("photo.jpg")) << "the document keeps its file";
    EXPECT_TRUE(ui.pictureInfoField->text().contains("My HOLIDAY.PNG"));
}

TEST_F(ExportPanelTest, TheFormatGivesTheExtensionAndTheSizeKeepsItsProportions)
{
    openPhoto("photo.jpg");
    choose("exportFormatMenu", "TIFF");
    EXPECT_EQ(part<QLineEdit>("nameField").text(), "photo.tif");
    auto& width = part<QSpinBox>("widthField");
    width.setFocus();
    width.selectAll();
    QTest::keyClicks(&width, "60\t");
    EXPECT_EQ(part<QSpinBox>("heightField").value(), 40);
    choose("exportResolutionMenu", "72 dpi");
    pressExport();
    EXPECT_EQ(identify(path("photo.tif")), "TIFF 60 40");
    EXPECT_EQ(outputOf("identify", {"-units", "PixelsPerInch", "-format", "%x", path("photo.tif")}), "72");
    choose("exportFormatMenu", "TIFF");
    EXPECT_EQ(part<QComboBox>("exportResolutionMenu").currentText(), "72 dpi") << "remembered for the format";
    choose("exportFormatMenu", "PNG");
    EXPECT_EQ(part<QComboBox>("exportResolutionMenu").currentText(), "300 dpi") << "and for that one only";
}

TEST_F(ExportPanelTest, TellsExactlyHowManyBytesTheFileWillHave)
{
    openPhoto("photo.jpg");
    part<QSlider>("qualitySlider").setValue(40);
    const auto text = [&] { return part<QLabel>("sizeLabel").text(); };
    ASSERT_TRUE(QTest::qWaitFor([&] { return text().contains("bytes"); }, kPatience)) << text().toStdString();
    const QString told = text();
    type("nameField", "small");
    pressExport();
    const QString exact = QLocale().toString(QFileInfo(path("small.jpg")).size()) + " bytes";
    EXPECT_TRUE(told.contains(exact)) << told.toStdString() << ", but " << exact.toStdString();
    EXPECT_TRUE(told.contains("120 × 80")) << told.toStdString();
}

TEST_F(ExportPanelTest, ReplacesNothingUnlessItIsTold)
{
    openPhoto("photo.png");
    ASSERT_TRUE(QFile::copy(pictureFile("other.jpg", 10, 10), path("There.jpg")));
    type("nameField", "There.jpg");
    answering("Cancel", [&] { pressExport(); });
    EXPECT_EQ(identify(path("There.jpg")), "JPEG 10 10");
    EXPECT_TRUE(isPanelOpen());
    EXPECT_TRUE(controller.wasChanged());
    answering("Replace", [&] { pressExport(); });
    EXPECT_EQ(identify(path("There.jpg")), "JPEG 120 80");
    EXPECT_FALSE(controller.wasChanged());
}

TEST_F(ExportPanelTest, AFailureSaysWhyAndLeavesAllAsItWas)
{
    openPhoto("photo.png");
    type("folderField", "/sys/kernel"); // not even the administrator writes there
    pressExport();
    EXPECT_TRUE(failure().contains("read-only") || failure().contains("may not write")) << failure().toStdString();
    type("folderField", path("missing"));
    EXPECT_EQ(failure(), "") << "a new try";
    pressExport();
    EXPECT_TRUE(failure().contains("no such folder")) << failure().toStdString();
    EXPECT_TRUE(controller.wasChanged());

    type("folderField", path({}));
    ASSERT_TRUE(QFile::copy(path("photo.png"), path("old.png")));
    type("nameField", "old.png");
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{1024, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small); // as a disk that is full after 1024 bytes
    answering("Replace", [&] { pressExport(); });
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_TRUE(failure().contains("can't be written")) << failure().toStdString();
    EXPECT_EQ(identify(path("old.png")), "PNG 120 80");
    EXPECT_EQ(files(), (QStringList{"old.png", "photo.png"})) << "nothing is left behind";
    EXPECT_TRUE(controller.wasChanged());
    panel().reject();
}

TEST_F(ExportPanelTest, LeavesOutThePlaceOrEverything)
{
    openPhoto("photo.jpg");
    outputOf("exiv2",
        {"-M", "set Exif.Image.Model Camera", "-M", "set Exif.GPSInfo.GPSLatitude 47/1 0/1 0/1", "-M",
            "set Xmp.photoshop.City Bern", path("photo.jpg")});
    openPicture(path("photo.jpg"));
    const auto metadata = [&](const QString& file) {
        return outputOf(
            "exiv2", {"-q", "-Pv", "-g", "Image.Model", "-g", "GPSLatitude", "-g", "photoshop.City", path(file)})
            .simplified();
    };
    const std::pair<const char*, const char*> cases[] = {
        {"All", "Camera 47/1 0/1 0/1 Bern"}, {"All but the place", "Camera"}, {"None", ""}};
    for (const auto& [choice, kept] : cases) {
        type("nameField", QString(choice) + ".jpg");
        choose("metadataMenu", choice);
        pressExport();
        EXPECT_EQ(metadata(QString(choice) + ".jpg"), kept);
    }
    type("nameField", "x.avif");
    choose("metadataMenu", "All but the place");
    pressExport();
    EXPECT_EQ(outputOf("exiv2", {"-q", "-Pv", "-g", "Image.Model", path("x.avif")}), "Camera");
    UserDefaults::standardUserDefaults().removeObjectForKey("exportJPEG");
}

TEST_F(ExportPanelTest, OpensAfterASaveThatTheFormatDoesNotAllow)
{
    openPhoto("photo.jpg");
    answering({"OK", "OK"}, [&] { controller.saveImg(); }); // the question, then what went wrong
    ASSERT_TRUE(isPanelOpen());
    EXPECT_EQ(part<QLineEdit>("nameField").text(), "photo.jpg");
    EXPECT_EQ(part<QComboBox>("exportFormatMenu").currentText(), "JPEG");
    answering("Replace", [&] { pressExport(); });
    EXPECT_FALSE(controller.wasChanged());
}

TEST_F(ExportPanelTest, EveryFormatThatIsOfferedIsWritten)
{
    openPhoto("photo.jpg");
    const auto& menu = part<QComboBox>("exportFormatMenu");
    QStringList formats;
    for (int i = 0; i < menu.count(); ++i)
        formats << menu.itemText(i);
    EXPECT_GE(formats.size(), 10);
    for (const QString& format : std::as_const(formats)) {
        SCOPED_TRACE(format.toStdString());
        type("nameField", "every");
        choose("exportFormatMenu", format);
        const QString file = panel().target();
        pressExport();
        EXPECT_FALSE(isPanelOpen());
        if (format == "PDF") {
            EXPECT_TRUE(outputOf("pdfinfo", {file}).contains("120 x 80"));
            continue;
        }
        if (format == "ICNS")
            continue; // nothing here reads it
        const Result<PictureInfo> info = readPictureInfo(file.toStdString());
        ASSERT_TRUE(info) << info.message();
        EXPECT_EQ(QLatin1String(fileFormat(info->format).name), format);
        if (format != "ICO") {
            EXPECT_EQ(readPicture(file.toStdString())->width(), 120);
        }
    }
}

} // namespace
