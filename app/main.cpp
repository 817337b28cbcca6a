#include "app/CommandLine.h"
#include "app/Controller.h"
#include "app/document/OneInstance.h"
#include "app/document/SessionFolder.h"
#include "app/window/MainWindow.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/Log.h"
#include "platform/imageio/reader_process/ReaderProcess.h"
#include "platform/quartz/TextRenderer.h"
#include "translations/Translations.h"

#include <QApplication>
#include <QFileInfo>
#include <QTimer>

#include <clocale>

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("lumivex"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LUMIVEX_VERSION));
    if (wantsOnlyText(argc, argv)) {
        QCoreApplication application(argc, argv); // needs no display
        installTranslations(application);
        return answerInText(application.arguments());
    }
    OneInstance instance;
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // Qt has set the user's; libraries read and write numbers with a point
    installTranslations(application);
    QGuiApplication::setDesktopFileName(QStringLiteral("io.github.lumivex.Lumivex"));
    const std::optional<StartRequest> request = startRequest(QCoreApplication::arguments());
    if (!request)
        return 2;
    QStringList pictures;
    for (const QString& picture : request->pictures)
        pictures << QFileInfo(picture).absoluteFilePath();
    if (!request->newWindow && instance.start(pictures) == OneInstance::Start::HandedOver)
        return 0;

    ReaderProcess::prepare();
    CITextRenderer::install(std::make_shared<TextRenderer>());
    Appearance::shared().dressApplication();
    MainWindow window;
    Controller controller(window);
    controller.awakeFromNib();
    if (!pictures.isEmpty())
        controller.opening().openFirst(pictures.takeFirst());
    for (const QString& picture : pictures)
        Session::openInNewWindow(picture);
    controller.applicationDidFinishLaunching();
    Session& session = controller.session();
    const QString home = SessionFolder::stateHome();
    session.startJournal(home);
    const auto show = [&] {
        if (window.isVisible())
            return;
        window.show();
        QTimer::singleShot(0, &controller, [&] { session.offerRestore(home); });
    };
    // With its picture, unless that takes long.
    QObject::connect(&controller.opening(), &Opening::shown, &window, show);
    QObject::connect(&controller.opening(), &Opening::finished, &window, show);
    if (!controller.isOpening())
        show();
    QObject::connect(&instance, &OneInstance::requested, &controller, [&](const QStringList& paths) {
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
        window.raise();
        window.activateWindow();
        qunsetenv("XDG_ACTIVATION_TOKEN"); // not for the next process
        session.openFilesFromOutside(paths);
    });
    return QApplication::exec();
}
