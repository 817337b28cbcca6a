#include "platform/foundation/Look.h"

#include <utility>

const Look& Look::light()
{
    static const Look look{
        .window = QColor(243, 243, 244),
        .panel = QColor(250, 250, 251),
        .surround = QColor(221, 221, 221),
        .field = QColor(255, 255, 255),
        .button = QColor(255, 255, 255),
        .hover = QColor(232, 232, 234),
        .pressed = QColor(222, 222, 225),
        .border = QColor(207, 207, 211),
        .edge = QColor(138, 138, 145),
        .separator = QColor(223, 223, 226),
        .text = QColor(32, 32, 36),
        .secondaryText = QColor(95, 95, 103),
        .disabledText = QColor(160, 160, 166),
        .accent = QColor(208, 200, 255),
        .accentText = QColor(38, 30, 84),
        .accentMark = QColor(122, 104, 208),
    };
    return look;
}

const Look& Look::dark()
{
    static const Look look{
        .window = QColor(40, 40, 42),
        .panel = QColor(33, 33, 35),
        .surround = QColor(26, 26, 26),
        .field = QColor(25, 25, 27),
        .button = QColor(58, 58, 61),
        .hover = QColor(56, 56, 60),
        .pressed = QColor(68, 68, 72),
        .border = QColor(72, 72, 76),
        .edge = QColor(116, 116, 122),
        .separator = QColor(22, 22, 24),
        .text = QColor(232, 232, 235),
        .secondaryText = QColor(164, 164, 170),
        .disabledText = QColor(104, 104, 110),
        .accent = QColor(149, 132, 224),
        .accentText = QColor(16, 12, 34),
        .accentMark = QColor(167, 151, 238),
    };
    return look;
}

QPalette paletteOf(const Look& look)
{
    QPalette palette;
    palette.setColor(QPalette::Window, look.window);
    palette.setColor(QPalette::WindowText, look.text);
    palette.setColor(QPalette::Base, look.panel);
    palette.setColor(QPalette::AlternateBase, look.window);
    palette.setColor(QPalette::Text, look.text);
    palette.setColor(QPalette::PlaceholderText, look.secondaryText);
    palette.setColor(QPalette::Button, look.button);
    palette.setColor(QPalette::ButtonText, look.text);
    palette.setColor(QPalette::BrightText, look.accentMark);
    palette.setColor(QPalette::ToolTipBase, look.field);
    palette.setColor(QPalette::ToolTipText, look.text);
    palette.setColor(QPalette::Highlight, look.accent);
    palette.setColor(QPalette::HighlightedText, look.accentText);
    palette.setColor(QPalette::Link, look.accentMark);
    palette.setColor(QPalette::LinkVisited, look.accentMark);
    palette.setColor(QPalette::Light, look.hover);
    palette.setColor(QPalette::Midlight, look.separator);
    palette.setColor(QPalette::Mid, look.border);
    palette.setColor(QPalette::Dark, look.border);
    palette.setColor(QPalette::Shadow, look.separator);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, look.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, look.hover);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, look.disabledText);
    return palette;
}

namespace {

// @name stands for the color of that name.
const char* const kStyleSheet = R"(
QToolTip { background: @field; color: @text; border: 1px solid @border; padding: 4px; }

QMenuBar { background: @window; padding: 0 4px; border: none; }
QMenuBar::item { background: transparent; padding: 4px 8px; border-radius: 4px; }
QMenuBar::item:selected { background: @hover; }
QMenu { background: @panel; border: 1px solid @border; padding: 4px; }
QMenu::item { padding: 5px 24px 5px 8px; border-radius: 4px; }
QMenu::indicator { width: 16px; height: 16px; margin-left: 4px; }
QMenu::item:selected { background: @accent; color: @accentText; }
QMenu::item:disabled { color: @disabledText; background: transparent; }
QMenu::separator { height: 1px; background: @separator; margin: 4px 8px; }

QLineEdit { background: @field; border: 1px solid @edge; border-radius: 6px; padding: 3px 7px;
            selection-background-color: @accent; selection-color: @accentText; }
QLineEdit:focus { border-color: @accentMark; }
TextField { background: @field; border: 1px solid @edge; border-radius: 6px; padding: 1px 3px;
            selection-background-color: @accent; selection-color: @accentText; }
TextField:focus { border-color: @accentMark; }
QLineEdit:disabled { color: @disabledText; background: @window; }

Overlay QAbstractSpinBox, ExportPanel QAbstractSpinBox { background: @field; border: 1px solid @edge; border-radius: 6px;
                                                        padding: 3px 7px; min-width: 48px; min-height: 18px; }
Overlay QAbstractSpinBox:focus, ExportPanel QAbstractSpinBox:focus { border-color: @accentMark; }

QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QPushButton { background: @button; border: 1px solid @border; border-radius: 6px; padding: 4px 16px; min-height: 18px; }
QPushButton:hover { background: @hover; }
QPushButton:pressed { background: @pressed; }
QPushButton:focus { border-color: @accentMark; }
QPushButton:default, QPushButton[prominent="true"] { background: @accent; color: @accentText; border-color: @accent; }
QPushButton:default:hover, QPushButton[prominent="true"]:hover { border-color: @accentMark; }
QPushButton:disabled, QPushButton:default:disabled, QPushButton[prominent="true"]:disabled
    { color: @disabledText; background: transparent; border-color: @border; }

QPushButton[mini="true"] { border-radius: 4px; padding: 0 8px; min-height: 0; }
QPushButton[bezelStyle="8"] { border-radius: 0; }

ReadoutField { background: @window; border: 1px solid transparent; border-radius: 4px; padding: 0; }
ReadoutField[bezeled="true"], ReadoutField:hover { background: @field; border-color: @edge; }
ReadoutField:focus { background: @field; border-color: @accentMark; }
ColorWell, BaseColoredButton, GradientButton { min-height: 0; padding: 0; border: none; }

QComboBox { background: @button; border: 1px solid @border; border-radius: 6px; padding: 3px 8px; min-height: 18px; }
QComboBox:hover { background: @hover; }
QComboBox:focus { border-color: @accentMark; }
QComboBox::drop-down { border: none; width: 20px; }
QComboBox::down-arrow { image: url(:/icons/@chevron.svg); width: 12px; height: 12px; }
QComboBox QAbstractItemView { background: @panel; border: 1px solid @border; padding: 4px;
                              selection-background-color: @accent; selection-color: @accentText; }

QProgressBar { background: @border; border: none; border-radius: 3px; max-height: 6px; min-height: 6px; }
QProgressBar::chunk { background: @accentMark; border-radius: 3px; }

QToolButton { background: transparent; border: 1px solid transparent; border-radius: 6px; padding: 4px; }
QToolButton:hover { background: @hover; }
QToolButton:pressed { background: @pressed; }
QToolButton:checked { background: @accent; color: @accentText; }
QToolButton:focus { border-color: @accentMark; }
QToolButton:disabled { color: @disabledText; }

QComboBox QAbstractItemView { background: @panel; border: 1px solid @border; outline: none; padding: 4px;
                              selection-background-color: @accent; selection-color: @accentText; }

QTreeView, QListView { background: @panel; border: none; outline: none; show-decoration-selected: 1; }
QTreeView::item { min-height: 24px; border: none; padding: 0; }
QTreeView::item:hover, QTreeView::branch:hover { background: @hover; }
QTreeView::item:selected, QTreeView::branch:selected { background: @accent; color: @accentText; }
#HelpWindow QListView { padding: 0 4px; }
#HelpWindow QListView::item { min-height: 28px; padding: 0 8px; border-radius: 6px; }
#HelpWindow QListView::item:hover { background: @hover; }
#HelpWindow QListView::item:selected { background: @accent; color: @accentText; }
QHeaderView::section { background: @window; border: none; border-bottom: 1px solid @separator; padding: 4px 8px; }

QSlider::groove:horizontal { height: 4px; border-radius: 2px; background: @border; }
QSlider::sub-page:horizontal { height: 4px; border-radius: 2px; background: @accentMark; }
QSlider::handle:horizontal { width: 12px; height: 12px; margin: -5px 0; border-radius: 7px;
                             background: @handle; border: 1px solid @handleEdge; }
QSlider::handle:horizontal:hover { border-color: @accentMark; }
QSlider::handle:horizontal:focus { border: 2px solid @accentMark; width: 10px; height: 10px; }
QSlider::sub-page:horizontal:disabled { background: @border; }
QSlider::handle:horizontal:disabled { background: @window; border-color: @border; }

QScrollBar:vertical { background: transparent; width: 12px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 0; }
QScrollBar::handle { background: @edge; border-radius: 3px; margin: 3px; }
QScrollBar::handle:vertical { min-height: 32px; }
QScrollBar::handle:horizontal { min-width: 32px; }
QScrollBar::handle:hover { background: @secondaryText; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QAbstractScrollArea::corner { background: transparent; }

QSplitter::handle { background: @separator; }
QStatusBar { background: @window; border-top: 1px solid @separator; }
QStatusBar::item { border: none; }
)";

} // namespace

QString styleSheetOf(const Look& look)
{
    const bool dark = look.window.lightness() < 128;
    // Longer names first: @accent is the start of two others.
    const std::pair<const char*, QColor> colors[] = {
        {"@secondaryText", look.secondaryText},
        {"@disabledText", look.disabledText},
        {"@accentText", look.accentText},
        {"@accentMark", look.accentMark},
        {"@handleEdge", dark ? look.panel : look.edge},
        {"@separator", look.separator},
        {"@surround", look.surround},
        {"@pressed", look.pressed},
        {"@handle", dark ? look.text : look.field},
        {"@window", look.window},
        {"@button", look.button},
        {"@border", look.border},
        {"@edge", look.edge},
        {"@accent", look.accent},
        {"@panel", look.panel},
        {"@field", look.field},
        {"@hover", look.hover},
        {"@text", look.text},
    };
    QString sheet = QString::fromLatin1(kStyleSheet);
    sheet.replace(QLatin1String("@chevron"), QLatin1String(dark ? "chevron-down-on-dark" : "chevron-down"));
    for (const auto& [name, color] : colors)
        sheet.replace(QLatin1String(name), color.name());
    return sheet;
}
