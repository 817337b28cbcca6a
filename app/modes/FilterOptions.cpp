#include "app/modes/FilterOptions.h"

#include "app/catalogue/FilterMaker.h"
#include "app/modes/InputValues.h"
#include "platform/chain/Effect.h"
#include "platform/chain/FilterChain.h"
#include "platform/foundation/UserDefaults.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>

#include <algorithm>
#include <utility>

namespace {

const QString kStartKey = QStringLiteral("StartFiltersFitted");
const QString kKeepSizeKey = QStringLiteral("KeepPictureSize");
constexpr double kLargePicture = 600; // px of the longer side

UserDefaults& defaults() { return UserDefaults::standardUserDefaults(); }

CIDictionary valuesOf(const CIFilter& filter)
{
    CIDictionary values;
    for (const CIInputAttributes* input : usersInputs(filter))
        values[input->key] = filter.valueForKey(input->key);
    return values;
}

} // namespace

FilterOptions::FilterOptions(Parts parts, FilterMaker& filters)
    : m_parts(parts)
{
    m_parts.keepSize.setChecked(defaults().objectForKey(kKeepSizeKey).toBool());
    connect(&m_parts.keepSize, &QCheckBox::toggled, this, [this](bool on) {
        defaults().setObjectForKey(on, kKeepSizeKey);
        emit keepSizeChanged();
    });
    filters.startsFitted = defaults().objectForKey(kStartKey).toBool();
    m_parts.startFitted.setChecked(filters.startsFitted);
    connect(&m_parts.startFitted, &QAction::toggled, this, [&filters](bool on) {
        filters.startsFitted = on;
        defaults().setObjectForKey(on, kStartKey);
    });
    connect(&m_parts.fit, &QAbstractButton::clicked, this, [this] {
        if (m_notice == Notice::Question)
            m_parts.startFitted.setChecked(true);
        emit fitAsked();
        show(Notice::None);
    });
    connect(&m_parts.other, &QAbstractButton::clicked, this, &FilterOptions::otherPressed);
    filterGone();
}

bool FilterOptions::keepsSize() const { return m_parts.keepSize.isChecked(); }

void FilterOptions::otherPressed()
{
    if (m_notice == Notice::Hint) {
        m_parts.startFitted.setChecked(true);
        emit fitAsked();
    }
    show(Notice::None);
}

void FilterOptions::show(Notice notice)
{
    m_notice = notice;
    const bool isQuestion = notice == Notice::Question;
    m_parts.text.setText(isQuestion
            ? tr("Standard values are made for small pictures. Start filters with values that fit this one?")
            : tr("Standard values suit a small picture."));
    m_parts.fit.setText(tr("Fit"));
    m_parts.other.setText(isQuestion ? tr("Standard Values") : tr("Always Fit"));
    m_parts.notice.setVisible(notice != Notice::None);
}

void FilterOptions::filterGone()
{
    m_filter.reset();
    m_parts.keepSize.hide();
    if (m_control)
        m_control->cancel();
    m_nextCheck = {};
    show(Notice::None);
}

void FilterOptions::filterChosen(const std::shared_ptr<CIFilter>& filter, const CIImage& picture, CIPoint viewSize)
{
    filterGone();
    m_filter = filter;
    if (!filter || !picture || m_parts.startFitted.isChecked() || usersInputs(*filter).empty())
        return;
    m_firstValues = valuesOf(*filter);
    const CIRect extent = picture.extent();
    if (!defaults().objectForKey(kStartKey).isValid() && std::max(extent.width, extent.height) > kLargePicture) {
        defaults().setObjectForKey(false, kStartKey); // once is enough
        return show(Notice::Question);
    }
    CIFilter fitted = *filter;
    fitToPicture(fitted, picture);
    check(picture, filteredPicture(*filter, picture, viewSize), filteredPicture(fitted, picture, viewSize));
}

/// The window doesn't wait for a former check to end.
void FilterOptions::check(const CIImage& picture, const CIImage& standard, const CIImage& fitted)
{
    m_control = std::make_shared<CIRenderControl>();
    m_nextCheck = [this, picture, standard, fitted, control = m_control] {
        const bool isBetter =
            !effectOn(picture, standard, control.get()).tells() && effectOn(picture, fitted, control.get()).tells();
        QMetaObject::invokeMethod(this, [this, isBetter, control] {
            m_isChecking = false;
            if (isBetter && !control->isCancelled() && hasFirstValues())
                show(Notice::Hint);
            startCheck();
        });
    };
    startCheck();
}

void FilterOptions::startCheck()
{
    if (m_nextCheck && !std::exchange(m_isChecking, true))
        m_thread.begin(std::exchange(m_nextCheck, {}));
}

bool FilterOptions::hasFirstValues() const { return m_filter && valuesOf(*m_filter) == m_firstValues; }

void FilterOptions::valuesChanged(bool isLargerThanPicture)
{
    if (isLargerThanPicture)
        m_parts.keepSize.show(); // and stays while the filter does
    if (m_notice == Notice::Hint && !hasFirstValues())
        show(Notice::None);
}
