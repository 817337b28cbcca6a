#include "controls/crop/CropPanel.h"

#include "controls/crop/CropCanvas.h"
#include "controls/crop/CropGeometry.h"
#include "widgets/PanelCheckBox.h"

#include <algorithm>
#include <numbers>

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

CropPanel::CropPanel(QWidget* page, const CIImage& picture)
    : Overlay(page, tr("Crop"), tr("Crop"))
    , m_canvas(new CropCanvas(picture, this))
    , m_shape(new QComboBox)
    , m_upright(new PanelCheckBox(tr("Upright")))
    , m_width(new QSpinBox)
    , m_height(new QSpinBox)
{
    content().addWidget(m_canvas);
    acceptButton().setToolTip(tr("Keeps what lies in the frame (Return)"));
    buildShapes();
    buildSize();
    auto* reset = new QPushButton(tr("&Whole Picture"));
    reset->setObjectName("cropResetBtn");
    reset->setToolTip(tr("Makes the frame as large as it can be"));
    connect(reset, &QPushButton::clicked, this, &CropPanel::reset);
    bar().addStretch();
    bar().addWidget(reset);
    connect(m_canvas, &CropCanvas::cropChanged, this, &CropPanel::showSize);
    showSize();
    chooseProportions();
    m_canvas->setFocus();
}

void CropPanel::buildShapes()
{
    const CIPoint size = m_canvas->pictureSize();
    const double own = std::max(size.x, size.y) / std::min(size.x, size.y);
    const std::pair<QString, double> shapes[] = {{tr("Free"), 0}, {tr("Square"), 1}, {tr("3 : 2"), 3.0 / 2},
        {tr("4 : 3"), 4.0 / 3}, {tr("16 : 9"), 16.0 / 9}, {tr("Golden Ratio"), std::numbers::phi},
        {tr("As the Picture"), own}};
    for (const auto& [title, longToShort] : shapes)
        m_shape->addItem(title, longToShort);
    m_shape->setObjectName("cropShapeMenu");
    m_shape->setAccessibleName(tr("Proportions"));
    m_shape->setToolTip(tr("Proportions that the frame keeps"));
    m_upright->setObjectName("cropUprightBox");
    m_upright->setToolTip(tr("The frame is higher than wide"));
    m_upright->setChecked(size.y > size.x);
    connect(m_shape, &QComboBox::currentIndexChanged, this, &CropPanel::chooseProportions);
    connect(m_upright, &QCheckBox::toggled, this, &CropPanel::chooseProportions);
    bar().addWidget(m_shape);
    bar().addWidget(m_upright);
    bar().addSpacing(bar().spacing());
}

void CropPanel::buildSize()
{
    const auto add = [this](QSpinBox& field, const char* name, const QString& title, const QString& hint, double most) {
        field.setObjectName(QLatin1String(name));
        field.setAccessibleName(title);
        field.setToolTip(hint);
        field.setRange(1, int(most));
        field.setButtonSymbols(QAbstractSpinBox::NoButtons);
        field.setKeyboardTracking(false); // half a number makes no frame
        field.setAlignment(Qt::AlignRight);
        bar().addWidget(&field);
        connect(&field, &QSpinBox::valueChanged, this, [this, &field] { sizeTyped(&field == m_width); });
    };
    const CIPoint size = m_canvas->pictureSize();
    add(*m_width, "cropWidthField", tr("Width"), tr("Width of the frame in pixels"), size.x);
    bar().addWidget(new QLabel(QStringLiteral("×")));
    add(*m_height, "cropHeightField", tr("Height"), tr("Height of the frame in pixels"), size.y);
    bar().addWidget(new QLabel(tr("px")));
}

CIRect CropPanel::crop() const { return m_canvas->crop(); }

void CropPanel::chooseProportions()
{
    const double longToShort = m_shape->currentData().toDouble();
    m_upright->setEnabled(longToShort > 1);
    m_canvas->setProportions(m_upright->isChecked() && longToShort > 0 ? 1 / longToShort : longToShort);
}

void CropPanel::showSize()
{
    const QSignalBlocker quietWidth(m_width), quietHeight(m_height);
    m_width->setValue(int(crop().width));
    m_height->setValue(int(crop().height));
}

void CropPanel::sizeTyped(bool isWidth)
{
    CIPoint size(m_width->value(), m_height->value());
    const double proportions = m_canvas->proportions();
    if (proportions > 0 && !isWidth)
        size.x = size.y * proportions;
    m_canvas->setCrop(sizedCrop(crop(), size, proportions, m_canvas->pictureSize()));
    showSize(); // it may have become another
}

void CropPanel::reset() { m_canvas->setCrop(largestCrop(m_canvas->pictureSize(), m_canvas->proportions())); }
