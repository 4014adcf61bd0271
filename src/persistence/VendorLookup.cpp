#include "persistence/VendorLookup.h"

#include <algorithm>
#include <array>

namespace tessara {

namespace {

constexpr qsizetype kPrefixLength = 8;       // "00:15:6D"
constexpr qsizetype kBSSIDLength = 17;       // "00:15:6D:01:02:03"
constexpr int kLocallyAdministered = 1 << 1; // of the first octet

constexpr char16_t kHexDigits[] = u"0123456789ABCDEF";

/// A block whose maker uses its last two octets with any first one.
struct WildcardBlock {
    QStringView octets; ///< the second and the third, with the colons before them
    QStringView canonical;
};
constexpr WildcardBlock kWildcardBlocks[] = {
    {u":15:6D", u"00:15:6D"}, {u":27:22", u"00:27:22"}, {u":18:D6", u"04:18:D6"},
    {u":A4:3C", u"24:A4:3C"}, {u":D9:E7", u"44:D9:E7"}, {u":72:51", u"68:72:51"},
    {u":A8:20", u"78:A8:20"}, {u":2A:A8", u"80:2A:A8"}, {u":FB:E4", u"B4:FB:E4"},
    {u":9F:DB", u"DC:9F:DB"}, {u":9F:C2", u"F0:9F:C2"}, {u":EC:DA", u"FC:EC:DA"},
};

const WildcardBlock* wildcardBlockOf(QStringView prefix)
{
    if (prefix.size() != kPrefixLength)
        return nullptr;
    const auto* block =
        std::ranges::find(kWildcardBlocks, prefix.sliced(2), &WildcardBlock::octets);
    return block == std::end(kWildcardBlocks) ? nullptr : block;
}

/// An identifier that is changed in place.
class Identifier {
public:
    explicit Identifier(QStringView prefix) { std::ranges::copy(prefix, m_text.begin()); }

    /// Marks the address as assigned by the registry, as the blocks of the table are.
    /// @return false if its first octet is not hexadecimal
    bool clearLocallyAdministered()
    {
        if (!isHexDigit(m_text[0]) || !isHexDigit(m_text[1]))
            return false;
        const int octet = QStringView(m_text).first(2).toInt(nullptr, 16) & ~kLocallyAdministered;
        m_text[0] = kHexDigits[octet >> 4];
        m_text[1] = kHexDigits[octet & 0xf];
        return true;
    }
    void setSecondOctet(QStringView octet) { std::ranges::copy(octet, m_text.begin() + 3); }
    void setLowDigitOfSecondOctet(int digit) { m_text[4] = kHexDigits[digit]; }
    void setThirdOctet(QStringView octet) { std::ranges::copy(octet, m_text.begin() + 6); }

    operator QStringView() const { return m_text; }

private:
    static bool isHexDigit(QChar c)
    {
        return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'F') || (c >= u'a' && c <= u'f');
    }

    std::array<QChar, kPrefixLength> m_text;
};

/// Apple's form of a further BSSID: the second and third octets of the block stand last and fifth,
/// and the low digit of the second has changed.
QByteArrayView rotatedVendor(const VendorTable& table, QStringView bssid)
{
    if (bssid.size() != kBSSIDLength)
        return {};
    Identifier block(bssid.first(kPrefixLength));
    block.setSecondOctet(bssid.last(2));
    block.setThirdOctet(bssid.sliced(12, 2));
    if (!block.clearLocallyAdministered())
        return {};
    for (int digit = 0; digit < 16; ++digit) {
        block.setLowDigitOfSecondOctet(digit);
        const QByteArrayView name = table.nameFor(block);
        if (name.startsWith("Apple"))
            return name;
    }
    return {};
}

/// The vendor of the block that a locally administered address was made from.
QByteArrayView repairedVendor(const VendorTable& table, QStringView prefix)
{
    if (prefix.size() != kPrefixLength)
        return {};
    Identifier block(prefix);
    return block.clearLocallyAdministered() ? table.nameFor(block) : QByteArrayView();
}

/// The owner's name in the table, empty if nobody is known.
QByteArrayView nameOf(const VendorTable& table, QStringView bssid)
{
    const QStringView prefix = bssid.left(kPrefixLength);
    QByteArrayView name = table.nameFor(prefix);
    if (name.isEmpty()) {
        const WildcardBlock* block = wildcardBlockOf(prefix);
        name = block ? table.nameFor(block->canonical) : rotatedVendor(table, bssid);
    }
    return name.isEmpty() ? repairedVendor(table, prefix) : name;
}

} // namespace

std::optional<QString> vendorOf(const VendorTable& table, QStringView bssid)
{
    const QByteArrayView name = nameOf(table, bssid);
    return name.isEmpty() ? std::nullopt : std::optional(QString::fromUtf8(name));
}

QString shortVendorName(const QString& name)
{
    if (name == QLatin1String("Cisco Meraki"))
        return QStringLiteral("Meraki"); // "Cisco" makes other access points
    const auto end = std::ranges::find_if(name, [](QChar c) { return c.isSpace() || c == u','; });
    return name.left(end - name.begin());
}

} // namespace tessara
