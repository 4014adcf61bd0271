#include "enrichment/StationAddresses.h"

#include <algorithm>
#include <optional>

namespace tessara {

namespace {

constexpr QByteArrayView kRadios = "waMA"; // all the rest, after the address of the wired port
constexpr QStringView kRadioKeys[] = {u"raMA", u"raM2"};

/// The value of a key; of a key that occurs twice the first counts (RFC 6763, 6.4).
std::optional<QByteArrayView> valueOf(QByteArrayView key, const QByteArrayList& txt)
{
    for (const QByteArrayView string : txt) {
        const qsizetype end = string.indexOf('=');
        if ((end < 0 ? string : string.first(end)) == key)
            return end < 0 ? QByteArrayView() : string.sliced(end + 1);
    }
    return std::nullopt;
}

bool isASCII(QByteArrayView bytes)
{
    return std::ranges::none_of(bytes, [](char byte) { return (byte & 0x80) != 0; });
}

} // namespace

QStringList stationAddresses(const QByteArrayList& txt)
{
    QStringList addresses;
    const auto value = valueOf(kRadios, txt);
    if (!value || !isASCII(*value))
        return addresses;
    const QString text = QString::fromLatin1(*value);
    for (const QStringView piece : QStringView(text).split(u',')) {
        const auto parts = piece.split(u'=');
        if (parts.size() == 2 && std::ranges::count(kRadioKeys, parts[0]) > 0)
            addresses.append(parts[1].toString().replace(u'-', u':'));
    }
    return addresses;
}

} // namespace tessara
