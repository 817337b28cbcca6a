#include "files/ExportSettings.h"

#include "files/ExportFormats.h"
#include "files/ImageDestination.h"
#include "platform/coreimage/passes/Resample.h"
#include "platform/foundation/UserDefaults.h"

#include <algorithm>
#include <new>

namespace {

const QString kLastFormat = QStringLiteral("exportFormat");

QString keyOf(const FileFormat& format) { return QStringLiteral("export") + QLatin1String(format.name); }

} // namespace

ExportSettings ExportSettings::remembered(PictureFormat format)
{
    const FileFormat& row = fileFormat(format);
    const QVariantMap stored = UserDefaults::standardUserDefaults().objectForKey(keyOf(row)).toMap();
    ExportSettings settings;
    WriteOptions& options = settings.options;
    options.format = format;
    options.quality = std::clamp(stored.value(QStringLiteral("quality"), options.quality).toDouble(), 0.01, 1.0);
    options.hasFullChroma = stored.value(QStringLiteral("fullChroma")).toBool();
    options.isProgressive = stored.value(QStringLiteral("progressive")).toBool();
    options.isLossless = stored.value(QStringLiteral("lossless")).toBool();
    const int last = int(row.options.compressions.size()) - 1;
    options.compression = std::clamp(stored.value(QStringLiteral("compression")).toInt(), 0, std::max(0, last));
    options.dotsPerInch = std::max(0.0, stored.value(QStringLiteral("resolution"), kDefaultResolution).toDouble());
    options.bitsPerComponent = stored.value(QStringLiteral("bits")).toInt();
    settings.metadata = KeptMetadata(std::clamp(stored.value(QStringLiteral("metadata")).toInt(), 0, 2));
    return settings;
}

void ExportSettings::remember() const
{
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    const FileFormat& row = fileFormat(options.format);
    defaults.setObjectForKey(QLatin1String(row.name), kLastFormat);
    defaults.setObjectForKey(
        QVariantMap{{QStringLiteral("quality"), options.quality}, {QStringLiteral("fullChroma"), options.hasFullChroma},
            {QStringLiteral("progressive"), options.isProgressive}, {QStringLiteral("lossless"), options.isLossless},
            {QStringLiteral("compression"), options.compression}, {QStringLiteral("resolution"), options.dotsPerInch},
            {QStringLiteral("bits"), options.bitsPerComponent}, {QStringLiteral("metadata"), int(metadata)}},
        keyOf(row));
}

void ExportSettings::forgetAll()
{
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    defaults.removeObjectForKey(kLastFormat);
    for (const FileFormat& row : fileFormats())
        defaults.removeObjectForKey(keyOf(row));
}

PictureFormat ExportSettings::lastFormat()
{
    const QString name = UserDefaults::standardUserDefaults().objectForKey(kLastFormat).toString();
    const auto row =
        std::ranges::find_if(fileFormats(), [&](const FileFormat& each) { return name == QLatin1String(each.name); });
    return row == fileFormats().end() ? PictureFormat::Jpeg : row->format;
}

CIBitmap bitmapToExport(const CIBitmap& picture, const ExportSettings& settings)
try {
    CIBitmap sized = picture;
    if (settings.size != QSize(picture.width(), picture.height())) {
        const CIImage recipe =
            ci::resampled(CIImage::fromBitmap(picture), settings.size.width(), settings.size.height());
        sized = CIBitmap(
            settings.size.width(), settings.size.height(), picture.format(), CIAlpha::Straight, picture.colorSpace());
        CIContext().renderInto(sized, 0, sized.height(), recipe);
        if (picture.alpha() == CIAlpha::Opaque)
            sized.setOpaque();
    }
    const FileFormat& row = fileFormat(settings.options.format);
    if (!row.isIcon)
        return sized;
    return scaleImageSize(
        sized, getIconSizeSize(QLatin1String(row.typeIdentifier), std::min(sized.width(), sized.height())));
} catch (const std::bad_alloc&) {
    return {};
}

Result<std::vector<std::byte>> encodeExport(const CIBitmap& toExport, const ExportSettings& settings,
    const std::shared_ptr<const PictureMetadata>& metadata, CIRenderControl* control)
try {
    if (toExport.isNull())
        return Failure{Reason::NoMemoryToSave};
    WriteOptions options = settings.options;
    options.control = control;
    if (metadata && settings.metadata != KeptMetadata::None)
        options.metadata = settings.metadata == KeptMetadata::All ? metadata : metadata->withoutPlace();
    return options.format == PictureFormat::Pdf ? encodePdf(toExport) : encodePicture(toExport, options);
} catch (const std::bad_alloc&) {
    return Failure{Reason::NoMemoryToSave};
}
