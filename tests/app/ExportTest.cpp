// Saving, and quitting with unsaved changes.
#include "WindowFixture.h"

#include "app/document/SessionFolder.h"
#include "files/SavePanel.h"
#include "platform/chain/Baking.h"
#include "platform/imageio/PictureReader.h"
#include "tests/support/Programs.h"
#include "tests/support/QuietLog.h"
#include "ui_MainWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <cmath>

namespace {

class ExportTest : public WindowTest {
protected:
    ExportTest()
        : lower(QDir::tempPath() + "/lumivex-export-" + QString::number(QCoreApplication::applicationPid()))
    {
        EXPECT_TRUE(QDir().mkpath(lower.path())); // saved paths become lower case as a whole
        // A test before may have ended the program, after which no sheet would wait for an answer.
        QTimer::singleShot(0, [] { QCoreApplication::exit(); });
        QApplication::exec();
    }
    ~ExportTest() override { lower.removeRecursively(); }

    QString path(const QString& name) const { return lower.filePath(name); }
    void chooseFormat(const QString& name)
    {
        auto* menu = window.findChild<QComboBox*>("formatMenu");
        ASSERT_TRUE(menu);
        menu->setCurrentIndex(menu->findText(name));
    }
    /// A picture of many colors as the current one, with a path of its own.
    void openNoise(const QString& name)
    {
        QImage image(64, 48, QImage::Format_RGB32);
        for (int y = 0; y < 48; ++y)
            for (int x = 0; x < 64; ++x)
                image.setPixel(x, y, qRgb(x * 4, y * 5, (x * y) % 256));
        ASSERT_TRUE(image.save(path(name), name.endsWith("png") ? "PNG" : "JPEG"));
        openPicture(path(name));
    }
    CIBitmap current() { return renderedBitmap(CIContext(), controller.backImage(), CIFormat::RGBA8); }

    /// Peak signal to noise in decibels; infinite for equal pixels.
    static double likeness(const CIBitmap& a, const CIBitmap& b)
    {
        double sum = 0;
        for (int y = 0; y < a.height(); ++y)
            for (std::size_t i = 0; i < std::size_t(a.width()) * 4; ++i) {
                const double difference = a.row<std::uint8_t>(y)[i] - b.row<std::uint8_t>(y)[i];
                sum += difference * difference;
            }
        return 10 * std::log10(255 * 255 * double(a.width()) * a.height() * 4 / sum);
    }

    /// What another program reads of camera, orientation, width, author and resolution.
    static QString metadata(const QString& file)
    {
        return outputOf("exiv2",
            {"-q", "-Pv", "-g", "Image.Model", "-g", "Image.Orientation", "-g", "Photo.PixelXDimension", "-g",
                "dc.creator", file})
            .simplified();
    }

    QDir lower;
};

TEST_F(ExportTest, EveryFormatIsAFileThatOthersRead)
{
    openNoise("noise.png");
    const CIBitmap truth = current();
    const struct {
        const char *name, *file, *kind;
        double decibels;
    } formats[] = {
        {"JPEG", "out.jpeg", "JPEG", 30},
        {"JPEG-2000", "out.jpeg-2000", "JP2", 30},
        {"TIFF", "out.tiff", "TIFF", INFINITY},
        {"GIF", "out.gif", "GIF", 20},
        {"PNG", "out.png", "PNG", INFINITY},
        {"BMP", "out.bmp", "BMP3", INFINITY},
        {"ICNS", "out.icns", "TIFF", INFINITY},
        {"PDF", "out.pdf", nullptr, 0},
    };
    for (const auto& format : formats) {
        SCOPED_TRACE(format.name);
        chooseFormat(format.name);
        perform(&Controller::savePanelDidEnd, QDialog::Accepted, path("OUT.xyz"));
        EXPECT_EQ(controller.getFilePath().isEmpty(), false);
        if (!format.kind)
            continue; // its capitals stay: see below
        EXPECT_EQ(controller.getFilePath(), path(format.file));
        EXPECT_EQ(identify(path(format.file)), QString("%1 64 48").arg(format.kind));
        const Result<CIBitmap> back = readPicture(path(format.file).toStdString());
        ASSERT_TRUE(back) << back.message();
        EXPECT_GE(likeness(*back, truth), format.decibels);
        if (QStringList({"JPEG", "TIFF", "PNG"}).contains(format.kind)) {
            const QString profile =
                QString::fromStdString(readPictureInfo(path(format.file).toStdString())->profileName);
            EXPECT_TRUE(profile.contains("sRGB")) << profile.toStdString();
        }
    }
    EXPECT_TRUE(QFile::exists(path("OUT.pdf")));
}

TEST_F(ExportTest, SavesWhatTheFilterMakesAndForgetsTheChanges)
{
    openNoise("noise.png");
    pick("CIColorInvert");
    EXPECT_TRUE(controller.wasChanged());
    EXPECT_EQ(window.windowTitle(), "Lumivex::noise.png[*]") << "where the platform marks changes";
    EXPECT_TRUE(window.isWindowModified());
    chooseFormat("PNG");
    perform(&Controller::savePanelDidEnd, QDialog::Accepted, path("inverse"));
    EXPECT_FALSE(controller.wasChanged());
    EXPECT_EQ(window.windowTitle(), "Lumivex::inverse.png");
    const Result<CIBitmap> back = readPicture(path("inverse.png").toStdString());
    ASSERT_TRUE(back);
    EXPECT_EQ(back->row<std::uint8_t>(0)[0], 255);
    EXPECT_TRUE(controller.getCurrentFilter()) << "saving applies nothing";
}

TEST_F(ExportTest, SavesInPlaceWhereTheExtensionAllows)
{
    openNoise("photo.jpeg");
    perform(&Controller::rotateLeft);
    answering("OK", [&] { controller.saveImg(); });
    EXPECT_EQ(identify(path("photo.jpeg")), "JPEG 48 64");

    pick("CIColorInvert");
    answering("Cancel", [&] { EXPECT_TRUE(controller.saveExistFile()); });
    EXPECT_TRUE(controller.wasChanged()) << "declined: counts as saved for the caller, but the changes are there";

    ASSERT_TRUE(QFile::copy(path("photo.jpeg"), path("photo.jpg")));
    openPicture(path("photo.jpg"));
    answering({"OK", "OK"}, [&] { controller.saveImg(); }); // the question, then what went wrong
}

TEST_F(ExportTest, KeepsWhatTheFileSaidAboutItself)
{
    openNoise("photo.jpeg");
    outputOf("exiv2",
        {"-M", "set Exif.Image.Model Camera", "-M", "set Exif.Image.Orientation 6", "-M", "set Xmp.dc.creator Somebody",
            path("photo.jpeg")});
    openPicture(path("photo.jpeg"));
    EXPECT_EQ(controller.getBgImageExtent().width, 48) << "turned upright";
    pick("CIColorInvert");
    perform(&Controller::applyBtn);
    perform(&Controller::resizeImageHeight, 24, 32);
    perform(&Controller::rotateLeft);
    answering("OK", [&] { controller.saveImg(); }); // over the file that it comes from
    EXPECT_EQ(metadata(path("photo.jpeg")), "Camera 1 32 Somebody");
    for (const QString format : {"TIFF", "PNG", "JPEG-2000"}) {
        chooseFormat(format);
        perform(&Controller::savePanelDidEnd, QDialog::Accepted, path("kept"));
        EXPECT_EQ(metadata(path("kept." + format.toLower())), "Camera 1 32 Somebody") << format.toStdString();
    }

    // Pictures that come from elsewhere carry none of it, until their step is undone.
    chooseFormat("PNG");
    perform(&Controller::copy);
    perform(&Controller::paste);
    perform(&Controller::savePanelDidEnd, QDialog::Accepted, path("pasted"));
    EXPECT_EQ(metadata(path("pasted.png")), "");
    perform(&Controller::undo);
    perform(&Controller::savePanelDidEnd, QDialog::Accepted, path("back"));
    EXPECT_EQ(metadata(path("back.png")), "Camera 1 32 Somebody");
    perform(&Controller::redo);
    perform(&Controller::savePanelDidEnd, QDialog::Accepted, path("again"));
    EXPECT_EQ(metadata(path("again.png")), "");
    perform(&Controller::openDroppedFile, path("kept.tiff"));
    const SessionState state = controller.session().state();
    openPicture(pictureFile("plain.png", 10, 10));
    perform(&Controller::savePanelDidEnd, QDialog::Accepted, path("plain"));
    EXPECT_EQ(metadata(path("plain.png")), "");
    controller.session().restore(state);
    perform(&Controller::savePanelDidEnd, QDialog::Accepted, path("restored"));
    EXPECT_EQ(metadata(path("restored.png")), "Camera 1 32 Somebody");
}

TEST_F(ExportTest, ThePanelOffersTheLastFormatAndGivesItsMenusBack)
{
    openNoise("noise.png");
    for (int i = 0; i < 2; ++i) {
        controller.saveImgAs();
        auto* panel = window.findChild<SavePanel*>();
        ASSERT_TRUE(panel);
        EXPECT_EQ(panel->windowTitle(), "Save Image As:");
        EXPECT_EQ(panel->windowModality(), Qt::WindowModal);
        auto* formats = panel->findChild<QComboBox*>("formatMenu");
        ASSERT_TRUE(formats);
        EXPECT_TRUE(formats->isVisible());
        EXPECT_EQ(formats->currentText(), i == 0 ? "JPEG" : "TIFF");
        EXPECT_EQ(panel->findChild<QComboBox*>("resolutionMenu")->currentData(), 300);
        formats->setCurrentIndex(2);
        panel->findChild<QLineEdit*>("fileNameEdit")->setText(path(QString("n%1").arg(i)));
        static_cast<QDialog*>(panel)->accept();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents(); // it is saved when the panel has gone
        waitUntilIdle();
        EXPECT_EQ(identify(path(QString("n%1.tiff").arg(i))), "TIFF 64 48");
    }
}

TEST_F(ExportTest, QuittingAsksAndDoesWhatIsAnswered)
{
    using Reply = Controller::TerminateReply;
    openNoise("photo.jpeg");
    EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Now);
    pick("CIColorInvert");
    answering("Cancel", [&] { EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Cancel); });
    answering("Don't Save", [&] { EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Now); });
    EXPECT_TRUE(controller.wasChanged());

    // In place: the question about replacing comes next, and then the program may end.
    answering({"Save...", "OK"}, [&] { EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Cancel); });
    EXPECT_FALSE(controller.wasChanged());
    EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Now);
}

TEST_F(ExportTest, ACancelledPanelStillQuitsButAFailedSaveDoesNot)
{
    using Reply = Controller::TerminateReply;
    openNoise("photo.png"); // can't be saved in place
    pick("CIColorInvert");
    // Replace, then the bad news.
    answering({"Save...", "OK", "OK"}, [&] { EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Cancel); });
    answering("Cancel", [&] { EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Cancel); }); // asks again

    controller.setFilePath({});
    answering("Save...", [&] { EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Cancel); });
    auto* panel = window.findChild<SavePanel*>();
    ASSERT_TRUE(panel);
    panel->reject();
    EXPECT_TRUE(controller.wasChanged());
    EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Now) << "without a question";
}

TEST_F(ExportTest, AFileThatCantBeWrittenStopsTheQuitting)
{
    using Reply = Controller::TerminateReply;
    const QuietLog quiet;
    openNoise("noise.png");
    controller.setFilePath({});
    pick("CIColorInvert");
    answering("Save...", [&] { EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Cancel); });
    delete window.findChild<SavePanel*>();
    chooseFormat("PNG");
    answering("OK", [&] { perform(&Controller::savePanelDidEnd, QDialog::Accepted, path("no folder/x")); });
    pick("CIColorPosterize");
    answering("Cancel", [&] { EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Cancel); });
}

TEST_F(ExportTest, StoppingALongSaveLeavesEverythingAsItWas)
{
    openNoise("photo.jpeg");
    const QString before = identify(path("photo.jpeg"));
    controller.undoPaste(CIImage::fromBitmap(CIBitmap(9000, 9000)));
    pick("CIMedianFilter");
    QTimer stopper;
    bool stopped = false;
    QObject::connect(&stopper, &QTimer::timeout, [&] {
        QWidget* sheet = QApplication::activeModalWidget();
        if (!sheet || sheet->objectName() != "ProgressSheet")
            return;
        stopped = true;
        for (auto* button : sheet->findChildren<QAbstractButton*>())
            button->click();
    });
    stopper.start(20);
    answering("OK", [&] { controller.saveImg(); });
    EXPECT_TRUE(stopped);
    EXPECT_TRUE(controller.wasChanged());
    EXPECT_EQ(identify(path("photo.jpeg")), before);
    EXPECT_EQ(lower.entryList(QDir::Files | QDir::Hidden), QStringList{"photo.jpeg"});
}

TEST_F(ExportTest, TheFinishedPictureIsThatOfTheMode)
{
    openNoise("noise.png");
    EXPECT_TRUE(controller.getEffectedImage().isSameAs(controller.backImage())) << "nothing is being edited";
    EXPECT_EQ(likeness(controller.createObjectImage(), current()), INFINITY);
    pick("CIColorInvert");
    EXPECT_EQ(controller.createObjectImage().row<std::uint8_t>(0)[0], 255);
    EXPECT_EQ(controller.getCGImage().row<std::uint8_t>(0)[0], 0) << "the source";
    pick("CICheckerboardGenerator");
    EXPECT_EQ(controller.getEffectedImage().extent(), controller.getBgImageExtent()) << "generators have no end";
    for (QAbstractButton* mode :
        {static_cast<QAbstractButton*>(ui.threeDBtn), static_cast<QAbstractButton*>(ui.customBtn)}) {
        mode->click();
        EXPECT_TRUE(controller.getEffectedImage().isSameAs(controller.backImage())) << "no effect is chosen";
    }
    EXPECT_EQ(controller.createObjectImage(72).width(), controller.getBgImageExtent().width);
}

TEST_F(ExportTest, DescribesBitmaps)
{
    const CIBitmap bitmap(6, 4, CIFormat::RGBA16);
    Controller::BitmapDescription description{};
    Controller::getBitmapBmpBitmap(CIBitmap(), description);
    EXPECT_EQ(description.bitmap, nullptr) << "left alone";
    Controller::getBitmapBmpBitmap(bitmap, description);
    EXPECT_EQ(description.width, 6);
    EXPECT_EQ(description.bitsPerPixel, 64);
    EXPECT_EQ(description.bitsPerSample, 16);
    EXPECT_EQ(description.pixels, bitmap.row(0));
    openPicture(path("none.png"));
    EXPECT_TRUE(controller.getCGImage().isNull());
}

} // namespace
