#include "files/ResizePanel.h"

#include "ui_ResizePanel.h"
#include "widgets/rows/NumberText.h"

namespace {

ResizePanel* sharedPanel = nullptr;

const char* const kExactValue = "exactValue"; // of a field: more digits than it shows
const char* const kShownText = "shownText";

QString numberText(float value)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(double(value), 'g', 6);
}

} // namespace

ResizePanel::ResizePanel(QWidget* window, ResizeMaster& master)
    : QDialog(window, Qt::Tool)
    , controller(&master)
{
    Ui::ResizePanel ui;
    ui.setupUi(this);
    mWidth = ui.mWidth;
    mHeight = ui.mHeight;
    mCaptionInfo = ui.mCaptionInfo;
    mPropBtn = ui.mPropBtn;
    mMeasurePopup = ui.mMeasurePopup;
    for (int i = 0; i < mMeasurePopup->count(); ++i)
        mMeasurePopup->setItemData(i, i + 1);
    for (QLineEdit* field : {mWidth, mHeight})
        connect(field, &QLineEdit::editingFinished, this, [this, field] {
            if (field->isModified())
                controlTextDidEndEditing(field);
        });
    connect(mMeasurePopup, &QComboBox::currentIndexChanged, this, &ResizePanel::changeMeasurements);
    connect(ui.resizeButton, &QPushButton::clicked, this, &ResizePanel::resize);
    connect(ui.cancelButton, &QPushButton::clicked, this, [this] {
        cancel();
        close();
    });
    awakeFromNib();
}

ResizePanel::~ResizePanel()
{
    if (sharedPanel == this)
        sharedPanel = nullptr;
}

void ResizePanel::awakeFromNib()
{
    if (!sharedPanel)
        sharedPanel = this;
    wasChanged = false;
}

void ResizePanel::setWHH(float width, float height)
{
    if (sharedPanel)
        sharedPanel->takeWHH(width, height);
}

void ResizePanel::takeWHH(float w, float h)
{
    width = w;
    height = h;
    mCaptionInfo->setText(tr("%1 x %2 pixels").arg(int(width)).arg(int(height)));
    cancel(); // the fields show pixels, and nothing has been edited
}

void ResizePanel::makeKeyAndOrderFront()
{
    show();
    raise();
    activateWindow();
}

void ResizePanel::showEvent(QShowEvent* event)
{
    const CIRect extent = controller->getBgImageExtent();
    if (!extent.isEmpty())
        takeWHH(float(extent.width), float(extent.height));
    mWidth->setFocus();
    mWidth->selectAll();
    QDialog::showEvent(event);
}

float ResizePanel::getDiv(int tag)
{
    switch (tag) {
    case Inches:
        return 72;
    case Millimeters:
        return 2.835f;
    case Centimeters:
        return 28.35f;
    case Picas:
        return 12;
    default:
        return 1;
    }
}

int ResizePanel::getMeasures() const { return mMeasurePopup->currentData().toInt(); }

bool ResizePanel::keepsProportions() const { return mPropBtn->isChecked(); }

float ResizePanel::floatValue(const QLineEdit* field) const
{
    if (field->text() == field->property(kShownText).toString())
        return field->property(kExactValue).toFloat();
    return float(typedNumber(field->text()).value_or(0));
}

void ResizePanel::setFloatValue(QLineEdit* field, float value)
{
    field->setText(numberText(value));
    field->setProperty(kShownText, field->text());
    field->setProperty(kExactValue, value);
}

void ResizePanel::controlTextDidEndEditing(QLineEdit* field)
{
    field->setModified(false);
    wasChanged = true;
    if (!keepsProportions() || width <= 0 || height <= 0)
        return;
    QLineEdit* other = field == mWidth ? mHeight : mWidth;
    const float ratio = field == mWidth ? height / width : width / height;
    setFloatValue(other, mMeasurement == Percent ? floatValue(field) : floatValue(field) * ratio);
}

void ResizePanel::changeMeasurements()
{
    const int unit = getMeasures();
    if (unit == mMeasurement)
        return;
    const auto converted = [&](const QLineEdit* field, float stored) {
        if (unit == Percent)
            return stored > 0 ? toPoint(floatValue(field)) / stored * 100 : 100.0f;
        const float k = 1 / getDiv(unit);
        if (mMeasurement == Percent)
            return stored * (floatValue(field) / 100) * k;
        return (wasChanged ? toPoint(floatValue(field)) : stored) * k;
    };
    setFloatValue(mWidth, converted(mWidth, width));
    setFloatValue(mHeight, converted(mHeight, height));
    mMeasurement = unit;
}

void ResizePanel::resize()
{
    if (!wasChanged)
        return;
    const auto pixels = [&](const QLineEdit* field, float stored) {
        return mMeasurement == Percent ? floatValue(field) / 100 * stored : toPoint(floatValue(field));
    };
    controller->resizeImageHeight(pixels(mWidth, width), pixels(mHeight, height));
    cancel();
}

void ResizePanel::cancel()
{
    selectPixels();
    setFloatValue(mWidth, width);
    setFloatValue(mHeight, height);
    wasChanged = false;
}

void ResizePanel::selectPixels()
{
    mMeasurement = Pixels; // comes first, so that the menu's signal finds no change
    mMeasurePopup->setCurrentIndex(mMeasurePopup->findData(int(Pixels)));
}
