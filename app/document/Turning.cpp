#include "app/document/Turning.h"

#include "app/document/Document.h"
#include "app/document/TurnedPicture.h"
#include "platform/chain/Baking.h"

void Turning::rotate(bool left)
{
    turn(
        tr("Rotating the picture…"), [left](const CIImage& picture) { return rotatedPicture(picture, left); },
        left ? tr("Rotate Left") : tr("Rotate Right"), [this, left] { rotate(!left); });
}

void Turning::flip(bool vertical)
{
    turn(
        tr("Flipping the picture…"), [vertical](const CIImage& picture) { return flippedPicture(picture, vertical); },
        vertical ? tr("Flip Vertical") : tr("Flip Horizontal"), [this, vertical] { flip(!vertical); });
}

/// Soon done, so not to be stopped.
void Turning::turn(const QString& title, const std::function<CIImage(const CIImage&)>& way, const QString& actionName,
    std::function<void()> undo)
{
    if (!m_document.picture())
        return;
    const auto make = [way, picture = m_document.picture()](WorkControl&) {
        const CIImage turned = way(picture);
        makeReducedCopies(turned);
        return turned;
    };
    m_document.work({.title = title, .canBeCancelled = false}, make,
        [this, actionName, undo = std::move(undo)](const std::optional<CIImage>& turned, bool) {
            if (!turned)
                emit m_document.message(tr("There was not enough memory to turn the picture"));
            if (!turned || !*turned)
                return;
            UndoManager& manager = m_document.undoManager();
            manager.registerUndoWithTarget(&m_document, undo);
            if (!manager.isUndoing()) // the redo is called what it does, not what the undo does
                manager.setActionName(actionName);
            m_document.setPicture(*turned);
        });
}
