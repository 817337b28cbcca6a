#include "app/modes/Mode.h"

#include "app/catalogue/OutlineView.h"
#include "app/document/Document.h"
#include "widgets/DocPageControl.h"
#include "widgets/GradientButton.h"

#include <QInputDialog>
#include <QLabel>
#include <QMenu>

Mode::Mode(const ModeParts& parts, FavouritesFamily family, Document& document)
    : m_document(document)
    , m_favorites(std::move(family), parts.strip, *this)
    , m_parts(parts)
{
    const auto take = [this](const OutlineItem* row) {
        choose(row);
        emit changed();
    };
    connect(&list(), &OutlineView::selectionDidChange, this, [this, take] { take(list().selectedItem()); });
    connect(&list(), &OutlineView::groupClicked, this, take);
}

Mode::~Mode() = default;

bool Mode::isOn() const { return m_parts.button.isChecked(); }

void Mode::clear()
{
    dropItem();
    deselectFavourite();
    deselectRows();
}

void Mode::deselectRows() { list().deselectAll(); }

void Mode::showTitle()
{
    if (!isOn())
        return;
    const Title shown = title();
    m_parts.name.setText(shown.name);
    m_parts.name.setVisible(!shown.name.isEmpty());
    m_parts.nameLine.setVisible(!shown.name.isEmpty());
    m_parts.hint.setText(shown.hint);
    m_parts.hint.setVisible(!shown.hint.isEmpty());
}

void Mode::appearanceChanged() { m_parts.button.setState(isOn()); }

CIImage Mode::finishedImage()
{
    const CIImage& source = m_document.picture();
    CIImage result = shownImage();
    if (result && result.extent().isInfinite())
        result = result.cropped(source.extent());
    return result ? result : source;
}

BaseEffect::LaterImage Mode::laterFinishedImage()
{
    const CIImage image = finishedImage();
    if (image.extent().isEmpty())
        return {};
    return [image](CIRenderControl*) { return image; };
}

/// As an undo step.
void Mode::replacePicture(const CIImage& applied)
{
    m_document.replacePicture(applied, tr("Apply"));
    m_document.setWasChanged(true);
}

// --- favourites ---

/// It is forgotten, too.
void Mode::deselectFavourite()
{
    if (m_selectes_FavBtn)
        m_selectes_FavBtn->setChecked(false);
    m_selectes_FavBtn = nullptr;
}

onlyTextClosedButton* Mode::selectedFavourite() const
{
    return m_selectes_FavBtn && m_selectes_FavBtn->isChecked() ? m_selectes_FavBtn : nullptr;
}

void Mode::addFavourite()
{
    makeFavourite([this](NewFavourite made) { m_favorites.add(std::move(made)); });
}

/// An undo step may ask this while another mode is on, for whose favourite it is: then that one's item goes, and here
/// all stays.
void Mode::chooseFavourite(onlyTextClosedButton* button)
{
    if (!isOn() && !m_favorites.contains(button)) {
        if (!button)
            emit clearAsked();
        emit changed();
        return;
    }
    const bool isSelected = button == m_selectes_FavBtn;
    deselectFavourite();
    deselectRows();
    if (!button || isSelected) {
        emit clearAsked();
    } else if (bringBack(m_favorites.favouriteOf(button))) {
        m_selectes_FavBtn = button;
        m_favorites.makeVisible(button);
        button->setChecked(true);
        m_document.setWasChanged(true);
    }
    emit changed();
}

void Mode::removeFavourite(onlyTextClosedButton* button)
{
    if (m_favorites.contains(button)) {
        if (button == m_selectes_FavBtn)
            emit clearAsked();
        m_favorites.remove(button);
        emit changed();
    }
    if (m_favorites.isEmpty())
        m_selectes_FavBtn = nullptr;
}

void Mode::showFavouriteMenu(onlyTextClosedButton* button, const QPoint& place)
{
    auto* menu = new QMenu(button);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& text, bool isEnabled, std::function<void()> action) {
        QAction* item = menu->addAction(text);
        item->setEnabled(isEnabled);
        connect(item, &QAction::triggered, this, std::move(action), Qt::QueuedConnection); // the menu has gone then
    };
    const QPointer<onlyTextClosedButton> present = button;
    const int index = strip().indexOf(button);
    add(tr("Re&name…"), true, [this, present] { renameFavourite(present); });
    add(tr("Move &Left"), index > 0, [this, present, index] { strip().moveItem(present, index - 1); });
    add(tr("Move &Right"), index + 1 < strip().items().size(),
        [this, present, index] { strip().moveItem(present, index + 1); });
    menu->addSeparator();
    add(tr("Re&place by Present Values"), hasItem(), [this, present] {
        makeFavourite([this, present](NewFavourite made) { m_favorites.replace(present, std::move(made)); });
    });
    add(tr("R&emove"), true, [this, present] { removeFavourite(present); });
    menu->popup(place);
}

void Mode::renameFavourite(onlyTextClosedButton* button)
{
    if (!button)
        return;
    auto* dialog = new QInputDialog(button->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setWindowTitle(tr("Rename Favourite"));
    dialog->setLabelText(tr("Name:"));
    dialog->setTextValue(button->toolTip());
    connect(dialog, &QInputDialog::textValueSelected, this,
        [this, button = QPointer(button)](const QString& name) { m_favorites.rename(button, name); });
    dialog->open();
}

void Mode::tell(const QString& message) { emit m_document.message(message); }
