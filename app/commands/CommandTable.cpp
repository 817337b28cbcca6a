#include "app/commands/Command.h"
#include "app/Controller.h"
#include "app/window/HelpWindow.h"
#include "app/window/MainWindow.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/Pasteboard.h"

namespace {

const Command kLine;

template <unsigned mode>
bool isMode(Controller& app)
{
    return app.filerMode() == mode;
}

bool canZoom(Controller& app) { return app.zooming().isPossible(); }

template <Appearance::Choice choice>
void look(Controller&)
{
    Appearance::shared().setChoice(choice);
}

template <Appearance::Choice choice>
bool isLook(Controller&)
{
    return Appearance::shared().choice() == choice;
}

} // namespace

const std::vector<Command>& Command::all()
{
    // Keys are written out: the platform leaves some of the standard ones empty. A row is laid out by hand, so that
    // it reads as one.
    // clang-format off
    static const std::vector<Command> table{
        {.name = "menuFile", .text = QT_TR_NOOP("&File"), .items = {
            {.name = "actionOpen", .text = QT_TR_NOOP("&Open…"), .hint = QT_TR_NOOP("Opens a picture file"),
                .icon = "open", .keys = {Qt::CTRL | Qt::Key_O}, .button = "openBtn", .run = &Controller::openImg,
                .whileOpening = true},
            {.name = "actionNewWindow", .text = QT_TR_NOOP("&New Window"),
                .hint = QT_TR_NOOP("Opens another window, with a picture of its own"), .keys = {Qt::CTRL | Qt::Key_N},
                .run = [](Controller&) { Session::openInNewWindow({}); }, .whileOpening = true},
            {.name = "actionOpenSecond", .text = QT_TR_NOOP("Open as Second Pict&ure…"),
                .hint = QT_TR_NOOP("Opens a picture file that is blended with the picture"),
                .keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_O}, .run = &Controller::openSecondPicture,
                .enabled = [](Controller& app) { return bool(app.backImage()); }},
            {.name = "menuRecent", .text = QT_TR_NOOP("Open &Recent"), .fill = &Controller::fillRecentMenu},
            {.name = "actionRevert", .text = QT_TR_NOOP("Re&vert to Opened File"),
                .hint = QT_TR_NOOP("Brings back the picture as its file has it"),
                .run = &Controller::revertToOpenedFile,
                .enabled = [](Controller& app) { return !app.getFilePath().isEmpty(); }},
            kLine,
            {.name = "actionExport", .text = QT_TR_NOOP("&Export…"),
                .hint = QT_TR_NOOP("Writes the result into a file of any format, under any name"), .icon = "export",
                .keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_E}, .button = "exportBtn", .run = &Controller::exportImg,
                .enabled = [](Controller& app) { return bool(app.backImage()); }},
            {.name = "actionSave", .text = QT_TR_NOOP("&Save"),
                .hint = QT_TR_NOOP("Saves the result to the picture's file"), .icon = "save",
                .keys = {Qt::CTRL | Qt::Key_S}, .button = "saveBtn", .run = &Controller::saveImg},
            {.name = "actionSaveAs", .text = QT_TR_NOOP("Save &As…"),
                .hint = QT_TR_NOOP("Saves the result under another name or in another format"),
                .keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_S}, .run = &Controller::saveImgAs},
            kLine,
            {.name = "actionInfo", .text = QT_TR_NOOP("Image &Information ..."),
                .hint = QT_TR_NOOP("Shows what the picture's file says about itself"), .icon = "info",
                .keys = {Qt::CTRL | Qt::Key_I}, .button = "infoBtn", .run = &Controller::showInfoPanel,
                .checked = &Controller::isInfoPanelShown, .whileOpening = true},
            {.name = "actionPrint", .text = QT_TR_NOOP("&Print…"), .hint = QT_TR_NOOP("Puts the result on paper"),
                .keys = {Qt::CTRL | Qt::Key_P}, .run = &Controller::printImg,
                .enabled = [](Controller& app) { return bool(app.backImage()); }},
            kLine,
            {.name = "actionClose", .text = QT_TR_NOOP("&Close"), .hint = QT_TR_NOOP("Closes the window"),
                .keys = {Qt::CTRL | Qt::Key_W}, .run = [](Controller& app) { app.window().close(); },
                .whileOpening = true},
            {.name = "actionQuit", .text = QT_TR_NOOP("&Quit"), .hint = QT_TR_NOOP("Ends the program"),
                .keys = {Qt::CTRL | Qt::Key_Q}, .run = &Controller::terminate, .whileOpening = true},
        }},
        {.name = "menuEdit", .text = QT_TR_NOOP("&Edit"), .items = {
            {.name = "actionUndo", .text = QT_TR_NOOP("&Undo"), .hint = QT_TR_NOOP("Takes the last change back"),
                .icon = "undo", .keys = {Qt::CTRL | Qt::Key_Z}, .button = "undoBtn", .run = &Controller::undo,
                .title = [](Controller& app) { return app.undoManager()->undoMenuItemTitle(); },
                .enabled = [](Controller& app) { return app.undoManager()->canUndo(); }},
            {.name = "actionRedo", .text = QT_TR_NOOP("&Redo"), .hint = QT_TR_NOOP("Makes the change again"),
                .icon = "redo", .keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y}, .button = "redoBtn",
                .run = &Controller::redo,
                .title = [](Controller& app) { return app.undoManager()->redoMenuItemTitle(); },
                .enabled = [](Controller& app) { return app.undoManager()->canRedo(); }},
            {.name = "menuUndoHistory", .text = QT_TR_NOOP("Undo &History"),
                .enabled = [](Controller& app) { return app.undoManager()->canUndo() || app.undoManager()->canRedo(); },
                .fill = &Controller::fillUndoHistoryMenu},
            kLine,
            {.name = "actionCopy", .text = QT_TR_NOOP("&Copy"),
                .hint = QT_TR_NOOP("Puts the result on the clipboard"), .icon = "copy",
                .keys = {Qt::CTRL | Qt::Key_C}, .button = "copyBtn", .pictureMenu = 2, .run = &Controller::copy,
                .enabled = [](Controller& app) { return bool(app.backImage()); }},
            {.name = "actionPaste", .text = QT_TR_NOOP("&Paste"),
                .hint = QT_TR_NOOP("Replaces the picture with the one on the clipboard"), .icon = "paste",
                .keys = {Qt::CTRL | Qt::Key_V}, .button = "pasteBtn", .pictureMenu = 2, .run = &Controller::paste,
                .enabled = [](Controller&) { return Pasteboard::generalPasteboard().offersTIFF(); }},
            kLine,
            {.name = "actionResetInputs", .text = QT_TR_NOOP("Reset &All Inputs"),
                .hint = QT_TR_NOOP("Gives the filter the values that it has when it is chosen"),
                .keys = {Qt::CTRL | Qt::Key_Backspace}, .run = &Controller::resetAllInputs,
                .enabled = [](Controller& app) { return app.hasInputsToSet(false); }},
            {.name = "actionRandomizeInputs", .text = QT_TR_NOOP("Rando&mize Inputs"),
                .hint = QT_TR_NOOP("Tries other values, all by chance"), .keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_R},
                .run = &Controller::randomizeInputs,
                .enabled = [](Controller& app) { return app.hasInputsToSet(true); }},
            {.name = "actionFitInputs", .text = QT_TR_NOOP("F&it to Picture"),
                .hint = QT_TR_NOOP("Gives the filter values that suit the size of the picture"),
                .keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_F}, .button = "fitInputsBtn", .run = &Controller::fitInputs,
                .enabled = [](Controller& app) { return app.hasInputsToSet(false); }},
            {.name = "actionStartFitted", .text = QT_TR_NOOP("&Start Filters Fitted to the Picture"),
                .hint = QT_TR_NOOP("Filters start with values that suit the size of the picture"), .isSwitch = true,
                .whileOpening = true},
            kLine,
            {.name = "actionFindFilter", .text = QT_TR_NOOP("&Find Filter"),
                .hint = QT_TR_NOOP("Goes to the search field of the catalogue"), .keys = {Qt::CTRL | Qt::Key_F},
                .run = [](Controller& app) { app.window().findFilter(); }},
            kLine,
            {.name = "actionPreferences", .text = QT_TR_NOOP("Pr&eferences…"),
                .hint = QT_TR_NOOP("How the program looks, and what it remembers"),
                .keys = {Qt::CTRL | Qt::Key_Comma}, .run = &Controller::showPreferences},
        }},
        {.name = "menuImage", .text = QT_TR_NOOP("&Image"), .items = {
            {.name = "actionApply", .text = QT_TR_NOOP("&Apply"), .hint = QT_TR_NOOP("Makes the result the picture"),
                .keys = {Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter}, .button = "applyBtn", .pictureMenu = 1,
                .run = &Controller::applyBtn, .enabled = &Controller::hasCurrentItem},
            {.name = "actionClearEffect", .text = QT_TR_NOOP("&Clear Effect"),
                .hint = QT_TR_NOOP("Drops the current filter or effect"), .keys = {Qt::Key_Escape}, .pictureMenu = 1,
                .run = &Controller::escapeEffect, .enabled = &Controller::hasCurrentItem},
            kLine,
            {.name = "actionRotateLeft", .text = QT_TR_NOOP("Rotate &Left"),
                .hint = QT_TR_NOOP("Turns the picture counter-clockwise"), .icon = "rotate-left",
                .keys = {Qt::CTRL | Qt::Key_L}, .button = "rotateLeftBtn", .run = &Controller::rotateLeft},
            {.name = "actionRotateRight", .text = QT_TR_NOOP("Rotate &Right"),
                .hint = QT_TR_NOOP("Turns the picture clockwise"), .icon = "rotate-right",
                .keys = {Qt::CTRL | Qt::Key_R}, .button = "rotateRightBtn", .run = &Controller::rotateRight},
            {.name = "actionFlipHorizont", .text = QT_TR_NOOP("Flip &Horizontal"),
                .hint = QT_TR_NOOP("Exchanges left and right"), .icon = "flip-horizontal",
                .keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_H}, .button = "flipHorizontBtn",
                .run = &Controller::flipHorizont},
            {.name = "actionFlipVert", .text = QT_TR_NOOP("Flip &Vertical"),
                .hint = QT_TR_NOOP("Exchanges top and bottom"), .icon = "flip-vertical",
                .keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_V}, .button = "flipVertBtn", .run = &Controller::flipVert},
            kLine,
            {.name = "actionCrop", .text = QT_TR_NOOP("Cro&p…"), .hint = QT_TR_NOOP("Keeps a part of the picture"),
                .keys = {Qt::CTRL | Qt::ALT | Qt::Key_C}, .run = &Controller::cropImage,
                .enabled = &Controller::canCropImage},
            {.name = "actionStraighten", .text = QT_TR_NOOP("&Straighten…"),
                .hint = QT_TR_NOOP("Turns the picture until its horizon is level"),
                .keys = {Qt::CTRL | Qt::ALT | Qt::Key_R}, .run = &Controller::straightenImage,
                .enabled = &Controller::canCropImage},
            {.name = "actionResize", .text = QT_TR_NOOP("Resize &Image ..."),
                .hint = QT_TR_NOOP("Changes the size of the picture"), .icon = "resize",
                .keys = {Qt::CTRL | Qt::ALT | Qt::Key_I}, .button = "resizeBtn", .run = &Controller::showResizePanel,
                .checked = &Controller::isResizePanelShown},
        }},
        {.name = "menuMode", .text = QT_TR_NOOP("&Mode"), .items = {
            {.name = "actionStandard", .text = QT_TR_NOOP("&Standard"),
                .hint = QT_TR_NOOP("Filters from the catalogue"), .keys = {Qt::ALT | Qt::Key_1},
                .run = [](Controller& app) { app.selectMenuMode(1); }, .checked = isMode<Controller::Standard>},
            {.name = "action3D", .text = QT_TR_NOOP("&3D"), .hint = QT_TR_NOOP("Effects in space"),
                .keys = {Qt::ALT | Qt::Key_2}, .run = [](Controller& app) { app.selectMenuMode(2); },
                .checked = isMode<Controller::ThreeD>},
            {.name = "actionCustom", .text = QT_TR_NOOP("&Custom"), .hint = QT_TR_NOOP("Generated effects"),
                .keys = {Qt::ALT | Qt::Key_3}, .run = [](Controller& app) { app.selectMenuMode(3); },
                .checked = isMode<Controller::Custom>},
        }},
        {.name = "menuFavourites", .text = QT_TR_NOOP("F&avourites"), .items = {
            {.name = "actionAddFavourite", .text = QT_TR_NOOP("&Add to the Favourites"),
                .hint = QT_TR_NOOP("Remembers the current effect with its settings"), .icon = "favourite-add",
                .keys = {Qt::CTRL | Qt::Key_D}, .button = "addFavouriteBtn", .run = &Controller::addFavourite,
                .enabled = &Controller::hasCurrentItem},
            {.name = "actionRemoveFavourite", .text = QT_TR_NOOP("&Remove from the Favourites"),
                .hint = QT_TR_NOOP("Forgets the favourite that is switched on"),
                .keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_D}, .run = &Controller::removeSelectedFavourite,
                .enabled = &Controller::hasSelectedFavourite},
            kLine,
            {.name = "actionLooks", .text = QT_TR_NOOP("&Looks…"),
                .hint = QT_TR_NOOP("Shows the looks that come with the program"), .icon = "looks", .button = "looksBtn",
                .run = &Controller::showLooks, .enabled = isMode<Controller::Standard>},
        }},
        {.name = "menuView", .text = QT_TR_NOOP("&View"), .items = {
            {.name = "actionZoomIn", .text = QT_TR_NOOP("Zoom &In"), .hint = QT_TR_NOOP("Shows the picture larger"),
                .icon = "zoom-in", .keys = {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, .pictureMenu = 3,
                .run = [](Controller& app) { app.zooming().step(1); }, .enabled = canZoom},
            {.name = "actionZoomOut", .text = QT_TR_NOOP("Zoom &Out"),
                .hint = QT_TR_NOOP("Shows the picture smaller"), .icon = "zoom-out",
                .keys = {Qt::CTRL | Qt::Key_Minus}, .pictureMenu = 3, .run = [](Controller& app) { app.zooming().step(-1); },
                .enabled = canZoom},
            {.name = "actionActualSize", .text = QT_TR_NOOP("&Actual Size"),
                .hint = QT_TR_NOOP("Shows each pixel of the picture as one point"), .icon = "actual-size",
                .keys = {Qt::CTRL | Qt::Key_1, Qt::CTRL | Qt::ALT | Qt::Key_0}, .button = "actualSizeBtn",
                .pictureMenu = 3, .run = [](Controller& app) { app.zooming().zoomTo(1); }, .enabled = canZoom},
            {.name = "actionFit", .text = QT_TR_NOOP("&Fit in Window"), .hint = QT_TR_NOOP("Shows the whole picture"),
                .icon = "fit", .keys = {Qt::CTRL | Qt::Key_0}, .button = "fitBtn", .pictureMenu = 3,
                .run = [](Controller& app) { app.zooming().zoomToFit(); }, .enabled = canZoom},
            kLine,
            {.name = "actionSplitView", .text = QT_TR_NOOP("&Split View"),
                .hint = QT_TR_NOOP("Shows the picture without the filter beside the result"), .icon = "split",
                .keys = {Qt::Key_F8}, .button = "splitBtn", .run = &Controller::splitView,
                .enabled = &Controller::canCompare, .isSwitch = true},
            {.name = "actionCompareOpened", .text = QT_TR_NOOP("&Compare with Opened File"),
                .hint = QT_TR_NOOP("Before and after show the file as it was opened, not the picture without the filter"),
                .keys = {Qt::SHIFT | Qt::Key_F8}, .run = &Controller::compareOpened,
                .enabled = [](Controller& app) { return app.document().hasOpened(); }, .isSwitch = true},
            {.name = "actionHistogram", .text = QT_TR_NOOP("&Histogram"),
                .hint = QT_TR_NOOP("Shows how often each brightness is seen in the result"),
                .keys = {Qt::CTRL | Qt::ALT | Qt::Key_H}, .isSwitch = true, .whileOpening = true},
            {.name = "actionThumbnails", .text = QT_TR_NOOP("Filter &Thumbnails"),
                .hint = QT_TR_NOOP("Shows in the list what each filter makes of the picture"),
                .run = &Controller::thumbnailsToggled, .isSwitch = true, .whileOpening = true},
            {.name = "actionFilterColumns", .text = QT_TR_NOOP("Filters in Colu&mns"),
                .hint = QT_TR_NOOP("Shows the filters as larger pictures beside each other"), .icon = "grid",
                .keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_G}, .button = "filterColumnsBtn", .run = &Controller::columnsToggled, .isSwitch = true,
                .whileOpening = true},
            kLine,
            {.name = "menuAppearance", .text = QT_TR_NOOP("A&ppearance"), .items = {
                {.name = "actionFollowDesktop", .text = QT_TR_NOOP("&As the Desktop"),
                    .hint = QT_TR_NOOP("Light or dark as the desktop is"), .run = look<Appearance::Choice::System>,
                    .checked = isLook<Appearance::Choice::System>, .whileOpening = true},
                {.name = "actionLight", .text = QT_TR_NOOP("&Light"), .hint = QT_TR_NOOP("Draws the program light"),
                    .run = look<Appearance::Choice::Light>, .checked = isLook<Appearance::Choice::Light>,
                    .whileOpening = true},
                {.name = "actionDark", .text = QT_TR_NOOP("&Dark"), .hint = QT_TR_NOOP("Draws the program dark"),
                    .run = look<Appearance::Choice::Dark>, .checked = isLook<Appearance::Choice::Dark>,
                    .whileOpening = true},
            }},
            {.name = "actionFullScreen", .text = QT_TR_NOOP("F&ull Screen"),
                .hint = QT_TR_NOOP("Gives the window the whole screen"), .keys = {Qt::Key_F11},
                .run = [](Controller& app) { app.window().toggleFullScreen(); },
                .checked = [](Controller& app) { return app.window().isFullScreen(); }, .whileOpening = true},
        }},
        {.name = "menuHelp", .text = QT_TR_NOOP("&Help"), .items = {
            {.name = "actionHelp", .text = QT_TR_NOOP("Lumivex &Help"), .hint = QT_TR_NOOP("Opens the help"),
                .keys = {Qt::Key_F1}, .run = &Controller::displayHelp,
                .enabled = [](Controller&) { return !HelpWindow::firstPage().isEmpty(); }, .whileOpening = true},
            kLine,
            {.name = "actionAbout", .text = QT_TR_NOOP("&About Lumivex"),
                .hint = QT_TR_NOOP("Says which version this is"), .run = &Controller::orderFrontAboutPanel,
                .whileOpening = true},
        }},
    };
    // clang-format on
    return table;
}
