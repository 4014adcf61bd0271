#include "model/AccessPointIdentity.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace tessara {

namespace {

constexpr qsizetype kOUILength = 8; // "00:11:22"

/// Masks a number of characters that ends `fromEnd` characters before the end.
QString masked(QString text, qsizetype fromEnd, qsizetype count = 1)
{
    const qsizetype start = text.size() - fromEnd;
    return start < 0 ? text : text.replace(start, count, QString(count, u'#'));
}

QString maskedForRuckus(const QString&, const QString& deviceid)
{
    QString result = deviceid;
    if (const qsizetype colon = result.indexOf(u':'); colon >= 0 && colon + 1 < result.size())
        result[colon + 1] = u'#';
    return masked(result, 1);
}

QString maskedForMeraki(const QString& bssid, const QString& deviceid)
{
    static const QRegularExpression numbered(QStringLiteral("02:18:[45]A|88:15:[01]4|E2:55:[67]D"));
    return numbered.match(bssid).hasMatch() ? masked(deviceid, 1) : deviceid;
}

QString maskedForUbiquiti(const QString&, const QString& deviceid)
{
    return masked(deviceid, 7);
}

QString maskedForApple(const QString& bssid, const QString& deviceid)
{
    constexpr uint kLocallyAdministered = 0x02;
    QString result = masked(deviceid, 2, 2);
    bool isHexadecimal = false;
    const uint firstOctet =
        bssid.first(std::min<qsizetype>(2, bssid.size())).toUInt(&isHexadecimal, 16);
    // A local address carries the access point's octet two places before in its third one.
    const QString thirdOctet = bssid.mid(6, 2);
    if (isHexadecimal && firstOctet & kLocallyAdministered && thirdOctet.size() == 2 &&
        result.size() >= 5)
        result.replace(result.size() - 5, 2, thirdOctet);
    return result;
}

QString maskedForOthers(const QString&, const QString& deviceid)
{
    return masked(deviceid, 1);
}

/// How the vendors whose names begin so number the BSSIDs of an access point.
struct Numbering {
    const char* vendorPrefix;
    QString (*mask)(const QString& bssid, const QString& deviceid);
};

constexpr Numbering kNumberings[] = {
    {"Ruckus", maskedForRuckus},     {"Cisco Meraki", maskedForMeraki}, {"Meraki", maskedForMeraki},
    {"Ubiquiti", maskedForUbiquiti}, {"Apple", maskedForApple},
};

} // namespace

QString deviceIdentifier(const QString& bssid, const std::optional<QString>& shortVendor)
{
    return shortVendor ? *shortVendor + bssid.mid(kOUILength) : bssid;
}

QString accessPointIdentifier(const QString& bssid, const QString& deviceid,
                              const std::optional<QString>& vendor)
{
    const auto* numbering = std::ranges::find_if(kNumberings, [&](const Numbering& candidate) {
        return vendor && vendor->startsWith(QLatin1String(candidate.vendorPrefix));
    });
    return numbering == std::end(kNumberings) ? maskedForOthers(bssid, deviceid)
                                              : numbering->mask(bssid, deviceid);
}

} // namespace tessara
