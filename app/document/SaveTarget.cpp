#include "app/document/SaveTarget.h"

#include "files/ExportFormats.h"
#include "platform/foundation/UserDefaults.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace {

const QString kAnswerKey = QStringLiteral("SaveAsFolder"); // when it is to be given without a question
const QString kMake = QStringLiteral("make"), kKeep = QStringLiteral("keep");

QString folderOf(const QString& path) { return QFileInfo(path).absolutePath(); }

/// Where file names have no case, the folder in lower case is there.
bool lacksFolder(const QString& target, const QString& chosen)
{
    return !QFileInfo::exists(folderOf(target)) && QFileInfo(folderOf(chosen)).isDir();
}

QString inChosenFolder(const QString& target, const QString& chosen)
{
    return folderOf(chosen) + QLatin1Char('/') + QFileInfo(target).fileName();
}

QString givenAnswer() { return UserDefaults::standardUserDefaults().objectForKey(kAnswerKey).toString(); }

} // namespace

QString SaveTarget::of(const QString& chosen, const QString& formatName)
{
    const QString target = exportPath(chosen, formatName);
    return lacksFolder(target, chosen) && givenAnswer() == kKeep ? inChosenFolder(target, chosen) : target;
}

std::optional<QString> SaveTarget::asked(QWidget* window, const QString& chosen, const QString& formatName)
{
    const QString target = exportPath(chosen, formatName);
    if (!lacksFolder(target, chosen))
        return target;
    QString answer = givenAnswer();
    if (answer != kMake && answer != kKeep) {
        QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Lumivex"),
            tr("There is no folder “%1”.").arg(folderOf(target)), QMessageBox::Cancel, window);
        box.setWindowModality(Qt::WindowModal);
        box.setInformativeText(tr("Save As writes the whole path in lower case. You chose the folder “%1”. "
                                  "Export writes names as they are typed.")
                                   .arg(folderOf(chosen)));
        QPushButton* keep = box.addButton(tr("Use Chosen Folder"), QMessageBox::AcceptRole);
        const QPushButton* make = box.addButton(tr("Make Folder"), QMessageBox::AcceptRole);
        box.setDefaultButton(keep);
        auto* remembers = new QCheckBox(tr("Don't ask again"));
        box.setCheckBox(remembers);
        box.exec();
        answer = box.clickedButton() == make ? kMake : box.clickedButton() == keep ? kKeep : QString();
        if (answer.isEmpty())
            return {};
        if (remembers->isChecked())
            UserDefaults::standardUserDefaults().setObjectForKey(answer, kAnswerKey);
    }
    if (answer == kKeep)
        return inChosenFolder(target, chosen);
    QDir().mkpath(folderOf(target)); // the save tells why if it still isn't there
    return target;
}
