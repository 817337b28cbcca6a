#include "app/CommandLine.h"
#include "app/Controller.h"
#include "platform/foundation/Log.h"
#include "app/MainWindow.h"
#include "app/TextRenderer.h"
#include "platform/foundation/Appearance.h"

#include <QApplication>
#include <QFileInfo>

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("lumivex"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LUMIVEX_VERSION));
    if (wantsOnlyText(argc, argv)) {
        const QCoreApplication application(argc, argv); // needs no display
        return answerInText(application.arguments());
    }
    QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("io.github.lumivex.Lumivex"));
    const std::optional<QString> picture = pictureArgument(QCoreApplication::arguments());
    if (!picture)
        return 2;

    CITextRenderer::install(std::make_shared<TextRenderer>());
    Appearance::shared().dressApplication();
    MainWindow window;
    Controller controller(window);
    controller.awakeFromNib();
    if (!picture->isEmpty())
        controller.openFile(QFileInfo(*picture).absoluteFilePath());
    window.show();
    controller.applicationDidFinishLaunching();
    return QApplication::exec();
}
