#include "platform/foundation/KeyedArchive.h"

#include "platform/foundation/ArchivedImage.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>

#include <algorithm>
#include <array>

namespace {

const QLatin1String kFormat("keyed archive"); // marks bytes as an archive
constexpr int kVersion = 1;
const QLatin1String kVersionKey("version"), kRootKey("root");

// Names of the types that CBOR has not; each is a map with one entry.
const QLatin1String kVector("vector"), kColor("color"), kTransform("transform"), kImage("image"),
    kDictionary("dictionary");

QCborArray numbers(std::initializer_list<double> values)
{
    QCborArray array;
    for (double value : values)
        array.append(value);
    return array;
}

QCborValue typed(QLatin1String type, QCborValue value) { return QCborMap{{type, std::move(value)}}; }

QCborValue encoded(const CIValue& value);

QCborValue encodedArray(const CIArray& values)
{
    QCborArray array;
    for (const CIValue& value : values)
        array.append(encoded(value));
    return array;
}

QCborValue encodedDictionary(const CIDictionary& values)
{
    QCborMap map;
    for (const auto& [key, value] : values)
        map.insert(QString::fromStdString(key), encoded(value));
    return typed(kDictionary, map);
}

QCborValue encodedVector(const CIVector& vector)
{
    QCborArray array;
    for (double component : vector.values())
        array.append(component);
    return typed(kVector, array);
}

QCborValue encoded(const CIValue& value)
{
    if (value.isBoolean())
        return value.toBool();
    if (value.isNumber())
        return value.toDouble();
    if (value.isString())
        return QString::fromStdString(value.toString());
    if (value.isVector())
        return encodedVector(value.toVector());
    if (value.isColor()) {
        const CIColor c = value.toColor();
        return typed(kColor, numbers({c.red(), c.green(), c.blue(), c.alpha()}));
    }
    if (value.isTransform()) {
        const CIAffineTransform t = value.toTransform();
        return typed(kTransform, numbers({t.a, t.b, t.c, t.d, t.tx, t.ty}));
    }
    if (value.isImage())
        return typed(kImage, archivedImage(value.toImage()));
    if (value.isData()) {
        const CIData& data = value.toData();
        return QByteArray(reinterpret_cast<const char*>(data.data()), qsizetype(data.size()));
    }
    if (value.isArray())
        return encodedArray(value.toArray());
    if (value.isDictionary())
        return encodedDictionary(value.toDictionary());
    return nullptr;
}

std::vector<double> decodedNumbers(const QCborValue& value)
{
    if (!value.isArray())
        throw ArchiveError("A row of numbers is missing.");
    std::vector<double> numbers;
    const QCborArray array = value.toArray();
    for (const QCborValue& number : array) {
        if (!number.isDouble() && !number.isInteger())
            throw ArchiveError("There is something else among numbers.");
        numbers.push_back(number.toDouble());
    }
    return numbers;
}

template <std::size_t count>
std::array<double, count> decodedNumbers(const QCborValue& value)
{
    const std::vector<double> numbers = decodedNumbers(value);
    if (numbers.size() != count)
        throw ArchiveError("There are too few or too many numbers.");
    std::array<double, count> row;
    std::copy(numbers.begin(), numbers.end(), row.begin());
    return row;
}

CIValue decoded(const QCborValue& value);

CIValue decodedDictionary(const QCborValue& value)
{
    if (!value.isMap())
        throw ArchiveError("A dictionary has no entries.");
    CIDictionary dictionary;
    const QCborMap map = value.toMap();
    for (const auto& [key, entry] : map)
        dictionary[key.toString().toStdString()] = decoded(entry);
    return dictionary;
}

CIValue decodedTyped(const QCborMap& map)
{
    if (map.size() != 1)
        throw ArchiveError("A value has no type, or more than one.");
    const QString type = map.begin().key().toString();
    const QCborValue value = map.begin().value();
    if (type == kVector)
        return CIVector(decodedNumbers(value));
    if (type == kColor) {
        const auto [red, green, blue, alpha] = decodedNumbers<4>(value);
        return CIColor(red, green, blue, alpha);
    }
    if (type == kTransform) {
        const auto [a, b, c, d, tx, ty] = decodedNumbers<6>(value);
        return CIAffineTransform{a, b, c, d, tx, ty};
    }
    if (type == kImage)
        return unarchivedImage(value.toMap());
    if (type == kDictionary)
        return decodedDictionary(value);
    throw ArchiveError("A value is of an unknown type.");
}

CIValue decoded(const QCborValue& value)
{
    switch (value.type()) {
    case QCborValue::Null:
        return {};
    case QCborValue::True:
    case QCborValue::False:
        return value.toBool();
    case QCborValue::Integer:
    case QCborValue::Double:
        return value.toDouble();
    case QCborValue::String:
        return value.toString().toStdString();
    case QCborValue::ByteArray: {
        const QByteArray bytes = value.toByteArray();
        const auto* first = reinterpret_cast<const std::byte*>(bytes.constData());
        return CIData(first, first + bytes.size());
    }
    case QCborValue::Array: {
        CIArray values;
        const QCborArray array = value.toArray();
        for (const QCborValue& element : array)
            values.push_back(decoded(element));
        return values;
    }
    case QCborValue::Map:
        return decodedTyped(value.toMap());
    default:
        throw ArchiveError("A value is of an unknown kind.");
    }
}

} // namespace

QByteArray KeyedArchive::archivedData(const CIValue& value)
{
    return QCborMap{{kFormat, true}, {kVersionKey, kVersion}, {kRootKey, encoded(value)}}.toCborValue().toCbor();
}

CIValue KeyedArchive::unarchivedValue(const QByteArray& data)
{
    QCborParserError error;
    const QCborValue archive = QCborValue::fromCbor(data, &error);
    if (error.error != QCborError::NoError)
        throw ArchiveError("The archive is damaged: " + error.errorString().toStdString());
    if (!archive.isMap() || !archive[kFormat].isTrue())
        throw ArchiveError("This is no archive.");
    if (archive[kVersionKey].toInteger() != kVersion)
        throw ArchiveError("The archive was written by a newer version of the program.");
    return decoded(archive[kRootKey]);
}
