#include "app/document/SaveTarget.h"

#include "files/ExportFormats.h"
#include "platform/foundation/UserDefaults.h"
#include "widgets/PanelCheckBox.h"

#include <algorithm>
#include <array>

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace {

const QString kAnswerKey = QStringLiteral("SaveAsFolder"); // when it is to be given without a question
const std::array<QString, 3> kStored{QString(), QStringLiteral("make"), QStringLiteral("keep")}; // in the enum's order

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

} // namespace

SaveTarget::Answer SaveTarget::standingAnswer()
{
    const QString stored = UserDefaults::standardUserDefaults().objectForKey(kAnswerKey).toString();
    const auto found = std::ranges::find(kStored, stored);
    return found == kStored.end() ? Answer::Ask : Answer(found - kStored.begin());
}

void SaveTarget::setStandingAnswer(Answer answer)
{
    if (answer == Answer::Ask)
        UserDefaults::standardUserDefaults().removeObjectForKey(kAnswerKey);
    else
        UserDefaults::standardUserDefaults().setObjectForKey(kStored[std::size_t(answer)], kAnswerKey);
}

QString SaveTarget::of(const QString& chosen, const QString& formatName)
{
    const QString target = exportPath(chosen, formatName);
    return lacksFolder(target, chosen) && standingAnswer() == Answer::Keep ? inChosenFolder(target, chosen) : target;
}

std::optional<QString> SaveTarget::asked(QWidget* window, const QString& chosen, const QString& formatName)
{
    const QString target = exportPath(chosen, formatName);
    if (!lacksFolder(target, chosen))
        return target;
    Answer answer = standingAnswer();
    if (answer == Answer::Ask) {
        QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Lumivex"),
            tr("There is no folder “%1”.").arg(folderOf(target)), QMessageBox::Cancel, window);
        box.setWindowModality(Qt::WindowModal);
        box.setInformativeText(tr("Save As writes the whole path in lower case. You chose the folder “%1”. "
                                  "Export writes names as they are typed.")
                                   .arg(folderOf(chosen)));
        QPushButton* keep = box.addButton(tr("Use Chosen Folder"), QMessageBox::AcceptRole);
        const QPushButton* make = box.addButton(tr("Make Folder"), QMessageBox::AcceptRole);
        box.setDefaultButton(keep);
        auto* remembers = new PanelCheckBox(tr("Don't ask again"));
        box.setCheckBox(remembers);
        box.exec();
        answer = box.clickedButton() == make ? Answer::Make : box.clickedButton() == keep ? Answer::Keep : Answer::Ask;
        if (answer == Answer::Ask)
            return {};
        if (remembers->isChecked())
            setStandingAnswer(answer);
    }
    if (answer == Answer::Keep)
        return inChosenFolder(target, chosen);
    QDir().mkpath(folderOf(target)); // the save tells why if it still isn't there
    return target;
}
