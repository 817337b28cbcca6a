#include "controls/editors/CubeEditor.h"

#include "controls/editors/ColorLooks.h"
#include "controls/editors/DisplayLight.h"
#include "controls/editors/FloatData.h"
#include "controls/panel/ParameterText.h"
#include "controls/picture/PictureConversion.h"
#include "platform/foundation/Appearance.h"
#include "widgets/FilePanel.h"

#include <algorithm>
#include <cmath>

#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace {

constexpr const char* kSideKey = "inputCubeDimension";
constexpr std::size_t kLookSide = 17, kLightSide = 48, kLargestSide = 64; // entries along an edge
constexpr qint64 kLargestFile = 100 << 20; // bytes
constexpr int kColumns = 3, kPictureHeight = 44, kNameHeight = 18;

QString messageOf(const ColorTableFault& fault)
{
    using Reason = ColorTableFault::Reason;
    const auto text = [&] {
        switch (fault.reason) {
        case Reason::NoSize:
            return CubeEditor::tr("This is no table of colors: its size is missing.");
        case Reason::TwoSizes:
            return CubeEditor::tr("The file has two sizes.");
        case Reason::BadSize:
            return CubeEditor::tr("The size is not possible.");
        case Reason::BadDomain:
            return CubeEditor::tr("The domain is not possible.");
        case Reason::BadTitle:
            return CubeEditor::tr("The title is not in quotation marks.");
        case Reason::UnknownWord:
            return CubeEditor::tr("There is a word that means nothing here.");
        case Reason::BadNumbers:
            return CubeEditor::tr("There are not three numbers.");
        case Reason::LateWord:
            return CubeEditor::tr("There is a word among the colors.");
        case Reason::TooFew:
            return CubeEditor::tr("Colors are missing at the end.");
        case Reason::TooMany:
            return CubeEditor::tr("There are more colors than the size says.");
        }
        return QString();
    }();
    return fault.line > 0 ? CubeEditor::tr("Line %1: %2").arg(fault.line).arg(text) : text;
}

QImage through(const QImage& picture, const ColorRule& rule)
{
    QImage result = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const ColorTriple color = rule({qRed(row[x]) / 255.0, qGreen(row[x]) / 255.0, qBlue(row[x]) / 255.0});
            const auto code = [&](std::size_t c) { return int(std::lround(std::clamp(color[c], 0.0, 1.0) * 255)); };
            row[x] = qRgba(code(0), code(1), code(2), qAlpha(row[x]));
        }
    }
    return result;
}

/// Whether the table is what the rule makes of some colors that no two looks have in common.
bool isCubeOf(const ColorRule& rule, const std::vector<float>& pixels, std::size_t side, bool inLight)
{
    const auto last = double(side - 1);
    for (std::size_t i = 0; i < 8;
         ++i) { // the corners; each on its way to the middle, where there is something between
        const auto along = [&](std::size_t bit) { return i >> bit & 1 ? side - 1 - side / 4 : side / 4; };
        const std::size_t r = along(0), g = along(1), b = along(2);
        const auto display = [&](std::size_t at) {
            return inLight ? displayFromLight(double(at) / last) : double(at) / last;
        };
        const ColorTriple color = rule({display(r), display(g), display(b)});
        for (std::size_t c = 0; c < 3; ++c) {
            const double wanted = inLight ? lightFromDisplay(color[c]) : color[c];
            if (std::abs(wanted - double(pixels[((b * side + g) * side + r) * 4 + c])) > 1e-4)
                return false;
        }
    }
    return true;
}

/// All hues, from white to black, where there is no picture.
QImage hues()
{
    QImage picture(48, 32, QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const float down = float(y) / float(picture.height() - 1);
            picture.setPixelColor(x, y,
                QColor::fromHsvF(
                    float(x) / float(picture.width()), std::min(1.0f, 2 * down), std::min(1.0f, 2 - 2 * down)));
        }
    return picture;
}

} // namespace

// --- small pictures ---

LookButton::LookButton(const QString& name, QWidget* parent)
    : QAbstractButton(parent)
{
    setText(name);
    setFont(rowFont(font()));
    setCheckable(true);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setToolTip(tr("Sets the table of colors to the look “%1”").arg(name));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LookButton::setPicture(const QImage& picture)
{
    m_picture = picture;
    update();
}

QSize LookButton::sizeHint() const { return {60, kPictureHeight + kNameHeight}; }

void LookButton::paintEvent(QPaintEvent*)
{
    const Look& look = Appearance::shared().look();
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF frame(2, 2, width() - 4, kPictureHeight - 4);
    // The middle of the picture, as much as fills the frame.
    const double scale = std::min(m_picture.width() / frame.width(), m_picture.height() / frame.height());
    QRectF part(QPointF(), frame.size() * scale);
    part.moveCenter(QRectF(m_picture.rect()).center());
    painter.drawImage(frame, m_picture, part);
    painter.setBrush(Qt::NoBrush);
    const bool isMarked = isChecked() || hasFocus() || underMouse();
    painter.setPen(QPen(isMarked ? look.accentMark : look.border, isChecked() || hasFocus() ? 2 : 1));
    painter.drawRoundedRect(frame.adjusted(-0.5, -0.5, 0.5, 0.5), 2, 2);
    painter.setPen(isChecked() ? look.text : look.secondaryText);
    painter.drawText(QRect(0, kPictureHeight, width(), kNameHeight), Qt::AlignCenter,
        fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

// --- the editor ---

CubeEditor::CubeEditor(const EditedInput& input, QWidget* parent)
    : InputEditor(input, parent)
    , m_load(new QPushButton(tr("Load .cube File…"), this))
    , m_state(new QLabel(this))
{
    m_load->setFont(rowFont(font()));
    m_load->setProperty("mini", true);
    m_load->setFixedHeight(22);
    m_load->setAutoDefault(false);
    m_load->setToolTip(tr("Opens a table of colors, as other programs write it"));
    connect(m_load, &QPushButton::clicked, this, &CubeEditor::chooseFile);
    m_state->setFont(rowFont(font()));
    m_state->setWordWrap(true);
    m_state->setObjectName(QStringLiteral("state"));

    auto* grid = new QGridLayout;
    grid->setSpacing(4);
    addLooks(*grid);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(4, 2, 4, 8);
    all->setSpacing(6);
    all->addLayout(grid);
    all->addWidget(m_load, 0, Qt::AlignLeft);
    all->addWidget(m_state);
    showValues();
}

void CubeEditor::addLooks(QGridLayout& grid)
{
    const CIImage picture = m_input.master.backImage();
    const QImage small = picture ? thumbnailOf(picture) : QImage();
    for (const ColorLook& look : colorLooks()) {
        auto* button = new LookButton(QCoreApplication::translate("ColorLook", look.name), this);
        button->setPicture(through(small.isNull() ? hues() : small, look.rule));
        connect(button, &QAbstractButton::clicked, this, [this, &look] {
            setTable(isInLight() ? kLightSide : kLookSide, look.rule);
            showValues();
        });
        grid.addWidget(button, int(m_looks.size()) / kColumns, int(m_looks.size()) % kColumns);
        m_looks.push_back(button);
    }
}

bool CubeEditor::isInLight() const
{
    // A filter that isn't told of a color space works on what it gets: light.
    const std::string space = value("inputColorSpace").toString();
    return !m_input.filter->attributesForKey("inputColorSpace") || space == "linearSRGB";
}

std::size_t CubeEditor::side() const { return std::size_t(std::max(0, int(value(kSideKey).toDouble()))); }

void CubeEditor::setTable(std::size_t wantedSide, const ColorRule& rule)
{
    const std::size_t oldSide = side();
    std::vector<std::pair<std::string, std::vector<float>>> others;
    for (const std::string& key : m_input.filter->inputKeys())
        if (key != m_input.key && m_input.filter->attributesForKey(key)->role == Role::Cube)
            if (std::vector<float> pixels = floatsOf(value(key).toData());
                oldSide >= 2 && pixels.size() >= 4 * oldSide * oldSide * oldSide)
                others.emplace_back(key, std::move(pixels));
    // The finer of two tables would lose.
    const std::size_t newSide = others.empty() ? wantedSide : std::clamp(oldSide, wantedSide, kLargestSide);

    beginChange();
    for (const auto& [key, pixels] : others)
        if (newSide != oldSide)
            setValue(key, dataOf(resampledCube(pixels, oldSide, newSide)));
    if (newSide != oldSide)
        setValue(kSideKey, double(newSide));
    setValue(m_input.key, dataOf(sampledCube(newSide, isInLight(), rule)));
    endChange();
}

void CubeEditor::showValues()
{
    const std::size_t now = side();
    const std::vector<float> pixels = floatsOf(value(m_input.key).toData());
    const bool isWhole = now >= 2 && now <= kLargestSide && pixels.size() == 4 * now * now * now;
    for (std::size_t i = 0; i < m_looks.size(); ++i)
        m_looks[i]->setChecked(isWhole && isCubeOf(colorLooks()[i].rule, pixels, now, isInLight()));
    say(tr("%1 × %1 × %1 colors").arg(now), false);
}

void CubeEditor::say(const QString& text, bool isFault)
{
    m_state->setText(text);
    QPalette palette;
    const Look& look = Appearance::shared().look();
    palette.setColor(QPalette::WindowText, isFault ? look.text : look.secondaryText);
    m_state->setPalette(palette);
}

// --- files ---

void CubeEditor::chooseFile()
{
    auto* panel = new QFileDialog(this, tr("Load a Table of Colors"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setWindowModality(Qt::WindowModal);
    panel->setNameFilters({tr("Tables of colors (*.cube *.CUBE)"), tr("All files (*)")});
    dressFilePanel(*panel);
    if (!m_folder.isEmpty())
        panel->setDirectory(m_folder);
    connect(panel, &QDialog::accepted, this, [this, panel] {
        if (!panel->selectedFiles().isEmpty())
            loadFile(panel->selectedFiles().first());
    });
    panel->open();
}

void CubeEditor::loadFile(const QString& path)
{
    QFile file(path);
    const QString name = QFileInfo(path).fileName();
    m_folder = QFileInfo(path).absolutePath();
    if (!file.open(QIODevice::ReadOnly))
        return say(tr("“%1” can't be opened.").arg(name), true);
    if (file.size() > kLargestFile)
        return say(tr("“%1” is too large for a table of colors.").arg(name), true);
    const QByteArray text = file.readAll();
    try {
        const ColorTable table = parsedColorTable({text.constData(), std::size_t(text.size())});
        // A cube over the very same colors is taken as it is; others are sampled as finely as makes sense.
        const std::size_t fine = isInLight() || !table.isCube ? kLightSide : table.side;
        setTable(std::min(fine, kLargestSide), table);
        showValues();
        const QString title = table.title.empty() ? name : QString::fromStdString(table.title);
        say(tr("%1: %2 × %2 × %2 colors", "title of a table").arg(title).arg(side()), false);
    } catch (const ColorTableFault& fault) {
        say(tr("“%1” is damaged.").arg(name) + QLatin1Char(' ') + messageOf(fault), true);
    }
}
