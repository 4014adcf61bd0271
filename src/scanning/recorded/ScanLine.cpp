#include "scanning/recorded/ScanLine.h"

#include "foundation/Localized.h"
#include "model/TSDataPoint.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

const QLatin1String kTime("time");
const QLatin1String kNetworks("networks");

std::optional<QByteArray> bytesOfHex(const QString& text)
{
    const auto isHexDigit = [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
    };
    if (text.size() % 2 != 0 || !std::ranges::all_of(text, isHexDigit))
        return std::nullopt;
    return QByteArray::fromHex(text.toLatin1());
}

// One overload for each type that a raw scan dictionary holds: what a JSON value stands for, and
// the value that stands for it.

bool read(const QJsonValue& json, std::optional<QString>& value)
{
    if (!json.isString())
        return false;
    value = json.toString();
    return true;
}

bool read(const QJsonValue& json, std::optional<std::int64_t>& value)
{
    // A number that is not whole, and what is no number, give the default of the one call and not
    // that of the other.
    const qint64 whole = json.toInteger(0);
    if (whole == 0 && json.toDouble(1) != 0)
        return false;
    value = whole;
    return true;
}

bool read(const QJsonValue& json, std::optional<bool>& value)
{
    if (!json.isBool())
        return false;
    value = json.toBool();
    return true;
}

bool read(const QJsonValue& json, std::optional<QByteArray>& value)
{
    if (json.isString())
        value = bytesOfHex(json.toString());
    return value.has_value();
}

QJsonValue jsonOf(const QString& value)
{
    return value;
}

QJsonValue jsonOf(std::int64_t value)
{
    return static_cast<qint64>(value);
}

QJsonValue jsonOf(bool value)
{
    return value;
}

QJsonValue jsonOf(const QByteArray& value)
{
    return QString::fromLatin1(value.toHex());
}

/// @return the key whose value is of the wrong kind; none if all are right
std::optional<QLatin1String> readNetwork(const QJsonObject& object, ScanDictionary& network)
{
    std::optional<QLatin1String> wrongKey;
    forEachKey(network, [&](QLatin1String key, auto& member) {
        const auto found = object.constFind(key);
        if (found != object.constEnd() && !read(*found, member) && !wrongKey)
            wrongKey = key;
    });
    if (!wrongKey && !isChannelNumber(network.channelNumber.value_or(0)))
        wrongKey = QLatin1String("channelNumber");
    return wrongKey;
}

} // namespace

QByteArray lineOfScan(const RecordedScan& scan)
{
    // Network by network: as one document, a scan would take its memory several times over.
    QByteArray line =
        "{\"time\":" + QByteArray::number(scan.time, 'g', QLocale::FloatingPointShortest) +
        ",\"networks\":[";
    for (const ScanDictionary& network : scan.networks) {
        QJsonObject object;
        forEachKey(network, [&](QLatin1String key, const auto& member) {
            if (member)
                object.insert(key, jsonOf(*member));
        });
        if (&network != &scan.networks.front())
            line += ',';
        line += QJsonDocument(object).toJson(QJsonDocument::Compact);
    }
    return line + "]}\n";
}

std::variant<RecordedScan, QString> scanOfObject(const QJsonObject& object)
{
    const QJsonValue time = object.value(kTime);
    if (!time.isDouble() || !(std::abs(time.toDouble()) <= RecordedScan::kLatestTime))
        return localized("\"time\" is not a number of seconds since 1970");
    const QJsonValue networks = object.value(kNetworks);
    if (!networks.isArray())
        return localized("\"networks\" is not an array");

    RecordedScan scan;
    scan.time = time.toDouble();
    const QJsonArray array = networks.toArray();
    scan.networks.resize(static_cast<std::size_t>(array.size()));
    for (qsizetype i = 0; i < array.size(); ++i) {
        const QJsonValue network = array.at(i);
        if (!network.isObject())
            return localized("network %1 is not an object").arg(i + 1);
        if (const auto key =
                readNetwork(network.toObject(), scan.networks[static_cast<std::size_t>(i)]))
            return localized("network %1: \"%2\" has a value of the wrong kind")
                .arg(i + 1)
                .arg(*key);
    }
    scan.recordsSignal = recordsSignal(scan.networks);
    return scan;
}

} // namespace tessara
