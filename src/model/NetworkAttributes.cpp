#include "model/NetworkAttributes.h"

#include "elements/ElementID.h"
#include "foundation/Utf8.h"
#include "model/Amendments.h"
#include "model/Band.h"
#include "model/PhyMode.h"
#include "model/PlacedElement.h"
#include "model/RateSet.h"
#include "model/SecurityElements.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace tessara {

namespace {

using namespace ElementID;

// Organizations of vendor elements.
enum : std::uint32_t {
    kMicrosoft = 0x0050F2,
    kWiFiAlliance = 0x506F9A,
    kAruba = 0x000B86,
    kCisco = 0x004096,
    kRouterboard = 0x000C42,
    kZebra = 0x00A0F8,
};

/// Text up to a zero byte.
QString asciiText(Bytes bytes)
{
    constexpr std::size_t kLongestName = 127;
    const auto end = std::ranges::find(bytes, std::uint8_t{0});
    const auto length =
        std::min<std::size_t>(static_cast<std::size_t>(end - bytes.begin()), kLongestName);
    QString text;
    text.reserve(static_cast<qsizetype>(length));
    for (const std::uint8_t byte : bytes.first(length)) {
        constexpr std::uint8_t kFirstBeyondASCII = 0x80;
        text +=
            byte < kFirstBeyondASCII ? QChar(char16_t{byte}) : QChar(QChar::ReplacementCharacter);
    }
    return text;
}

/// A name of at most 33 bytes up to a zero byte; empty if it is no UTF-8.
QString ssidText(Bytes content)
{
    constexpr std::size_t kLongestSSID = 33;
    Bytes name = content.first(std::min(content.size(), kLongestSSID));
    const auto end = std::ranges::find(name, std::uint8_t{0});
    name = name.first(static_cast<std::size_t>(end - name.begin()));
    return textFromUtf8(charactersOf(name)).value_or(QString());
}

QString countryText(Bytes code)
{
    const bool isText = code.size() == 2 && std::ranges::all_of(code, [](std::uint8_t byte) {
                            return byte > ' ' && byte < 0x7f;
                        });
    return isText ? asciiText(code).toUpper() : QString();
}

/// Reads one dictionary. The walks over its elements come in an order that later ones rely on.
class Derivation {
public:
    Derivation(const ScanDictionary& dictionary, NetworkAttributes previous)
        : m_dictionary(dictionary)
        , m_result(std::move(previous))
    {
        resetWhatEachScanTells();
    }

    NetworkAttributes run()
    {
        m_result.phyMode = m_dictionary.phyMode.value_or(0);
        m_result.securityMode = static_cast<SecurityMode>(
            m_dictionary.securityMode.value_or(static_cast<std::int64_t>(SecurityMode::kUnknown)));
        if (m_dictionary.informationElementData)
            readElements(*m_dictionary.informationElementData);
        if (m_security.lacksTransition() && m_result.fastBssTransition >= 0)
            m_result.fastBssTransition += 2;
        derivePhyMode();
        m_result.securityMode = m_security.mode(m_result.securityMode);
        if (m_result.phyMode != 0 && m_result.streams == 0)
            m_result.streams = 1;
        return std::move(m_result);
    }

private:
    /// The values that stand where the dictionary has no elements.
    void resetWhatEachScanTells()
    {
        m_previousChannel = std::exchange(m_result.channel, 0);
        m_result.ssid.clear();
        m_result.deviceName.clear();
        m_result.countryCode.clear();
        m_result.streams = 0;
        m_result.channelWidth = ChannelWidth::kUnknown;
        m_result.stationCount = -1;
        m_result.channelUtilization = -1;
        m_result.htProtection = -1;
        m_result.fastBssTransition = -1;
        m_result.wpsEnabled = false;
        m_result.wpsConfigured = false;
        m_result.wpsLocked = false;
    }

    void readElements(const QByteArray& elements)
    {
        const ByteReader data(Bytes(reinterpret_cast<const std::uint8_t*>(elements.constData()),
                                    static_cast<std::size_t>(elements.size())));
        forEachElement(data, [this](const PlacedElement& element) { readIdentity(element); });
        forEachElement(data, [this](const PlacedElement& element) { readOperation(element); });
        deriveWidth();
        forEachElement(data, [this](const PlacedElement& element) { readMCSRates(element); });
        forEachElement(data, [this](const PlacedElement& element) { readLegacyRates(element); });
        storeRates();
        m_result.cipherType = m_security.cipherType();
        if (m_security.protectsManagement())
            m_amendments.add('w');
        m_result.amendments = m_amendments.letters();
    }

    // First walk: name, channel, country, and what an element says by being there.
    void readIdentity(const PlacedElement& element)
    {
        switch (element.id) {
        case kSSID:
            if (element.length != 0)
                m_result.ssid = ssidText(element.content());
            break;
        case kDSParameterSet:
        case kHTOperation:
            if (m_result.channel == 0)
                m_result.channel = element.byteOrZero(2);
            break;
        case kCountry:
            m_amendments.add('d');
            m_result.countryCode = countryText(element.bytes(2, 2));
            break;
        case kPowerConstraint:
        case kTPCReport:
        case kChannelSwitchAnnouncement:
        case kQuiet:
            if (was5GHz())
                m_amendments.add('h');
            break;
        case kHTCapabilities:
            if (element.lacks(2, 0x02))
                m_width = ChannelWidth::k20MHz;
            break;
        case kTimeAdvertisement:
            m_amendments.add('p');
            break;
        case kRMEnabledCapabilities:
            m_amendments.add('k');
            break;
        case kMeshConfiguration:
        case kMeshID:
            m_amendments.add('s');
            break;
        case kExtendedCapabilities:
            if (element.length >= 3 && element.has(4, 0x08)) // BSS Transition
                m_amendments.add('v');
            break;
        case kVHTCapabilities:
        case kVHTOperation:
            if (m_dictionary.phyMode.value_or(0) == 0 && was5GHz())
                m_modeWord = kPhyModeAC;
            break;
        default:
            break;
        }
    }

    // Second walk: load, HT and VHT operation, security, and what vendors add.
    void readOperation(const PlacedElement& element)
    {
        switch (element.id) {
        case kBSSLoad:
            readLoad(element);
            break;
        case kHTCapabilities:
            m_shortGI20 = element.has(2, 0x20);
            m_shortGI40 = element.has(2, 0x40);
            break;
        case kRSN:
            m_amendments.add('i');
            m_security.addRSN(element);
            break;
        case kMobilityDomain:
            m_amendments.add('r');
            if (element.length == 3)
                m_result.fastBssTransition = element.has(4, 0x01) ? 1 : 0;
            break;
        case kHTOperation:
            m_hasHTOperation = true;
            if (const auto information = element.byte(3))
                m_result.secondaryChannelOffset = *information & 0x03;
            if (const auto information = element.byte(4))
                m_result.htProtection = *information & 0x03;
            if (m_modeWord != kPhyModeAC && m_dictionary.phyMode.value_or(0) == 0)
                m_modeWord |= kPhyModeN;
            break;
        case kCiscoCCX1:
            if (element.length >= 26)
                m_result.deviceName = asciiText(element.bytes(12, 16));
            if (m_result.stationCount < 0)
                m_result.stationCount = element.byte(28) ? *element.byte(28) : -1;
            break;
        case kVHTCapabilities:
            m_shortGI80 = element.has(2, 0x20);
            m_shortGI160 = element.has(2, 0x40);
            break;
        case kVHTOperation:
            if (const std::uint8_t width = element.byteOrZero(2); width >= 1 && width <= 3)
                m_width = static_cast<ChannelWidth>(width + 2);
            break;
        case kVendorSpecific:
            if (element.length >= 5)
                readVendorElement(element);
            break;
        default:
            break;
        }
    }

    void readLoad(const PlacedElement& element)
    {
        m_amendments.add('e');
        if (element.length != 4 && element.length != 5)
            return;
        m_result.stationCount = element.u16(2).value_or(0);
        m_result.channelUtilization =
            static_cast<std::int64_t>(element.byteOrZero(4) * 100.0 / 255.0);
        m_result.channelUtilizationMax =
            std::max(m_result.channelUtilizationMax, m_result.channelUtilization);
    }

    void readVendorElement(const PlacedElement& element)
    {
        const std::uint8_t type = element.byteOrZero(5);
        switch (element.oui(2)) {
        case kWiFiAlliance:
            if (type == 16) // Hotspot 2.0 Indication
                m_amendments.add('u');
            break;
        case kMicrosoft:
            readMicrosoftElement(element, type);
            break;
        case kAruba:
            if (type == 1 && element.length >= 7 && element.byteOrZero(6) == 3)
                m_result.deviceName = asciiText(element.bytes(8, element.length - 6));
            break;
        case kZebra:
            if (type == 1 && element.length >= 13 && element.byteOrZero(6) == 3)
                m_result.deviceName = asciiText(element.bytes(14, element.length - 12));
            break;
        case kRouterboard:
            readRouterboardName(element);
            break;
        default:
            break;
        }
    }

    void readMicrosoftElement(const PlacedElement& element, std::uint8_t type)
    {
        constexpr std::uint8_t kWPA = 1;
        constexpr std::uint8_t kWMM = 2;
        constexpr std::uint8_t kWPS = 4;
        if (type == kWPA) {
            m_security.addWPA(element);
        } else if (type == kWMM) {
            m_amendments.add('e');
        } else if (type == kWPS) {
            m_result.wpsEnabled = true;
            if (element.length >= 9)
                readWPSState(element);
        }
    }

    void readWPSState(const PlacedElement& element)
    {
        constexpr std::uint16_t kState = 0x1044;
        constexpr std::uint16_t kAPSetupLocked = 0x1057;
        // The remainder begins 4 short of the attributes, so that a last short one goes unread:
        // that is meant.
        std::size_t number = 6;
        for (auto remainder = static_cast<std::ptrdiff_t>(element.length) - 8; remainder > 0;) {
            const auto type = element.u16BigEndian(number);
            const auto length = element.u16BigEndian(number + 2);
            if (!type || !length)
                return;
            if (const auto value = element.byte(number + 4)) {
                if (*type == kAPSetupLocked)
                    m_result.wpsLocked = *value != 0;
                else if (*type == kState)
                    m_result.wpsConfigured = *value == 2;
            }
            number += std::size_t{4} + *length;
            remainder -= std::ptrdiff_t{4} + *length;
        }
    }

    void readRouterboardName(const PlacedElement& element)
    {
        for (std::size_t i = 1; i < element.length;) {
            const auto length = element.byte(i + 6);
            if (!length)
                return;
            if (element.byteOrZero(i + 5) == 1 && *length >= 11)
                m_result.deviceName = asciiText(element.bytes(i + 17, *length - std::size_t{10}));
            i += std::size_t{2} + *length;
        }
    }

    void deriveWidth()
    {
        int& offset = m_result.secondaryChannelOffset;
        if (!m_hasHTOperation || m_width == ChannelWidth::k20MHz)
            offset = 0;
        if (m_width == ChannelWidth::kUnknown) {
            const bool isWide = offset == 1 || offset == 3;
            m_width = isWide ? ChannelWidth::k40MHz : ChannelWidth::k20MHz;
            if (!isWide)
                offset = 0;
        }
        m_result.channelWidth = m_width;
    }

    // Third walk: streams, and the rates that follow from the MCS sets.
    void readMCSRates(const PlacedElement& element)
    {
        if (element.id == kHTCapabilities)
            readHTRates(element);
        else if (element.id == kVHTCapabilities)
            readVHTRates(element);
    }

    void readHTRates(const PlacedElement& element)
    {
        constexpr std::size_t kIndexes = 32; // the equal modulations of up to four streams
        const bool isWide = m_width == ChannelWidth::k40MHz;
        const bool shortGI = isWide ? m_shortGI40 : m_shortGI20;
        std::size_t highest = 0;
        for (std::size_t index = 0; index < kIndexes; ++index) {
            if (!element.has(5 + index / 8, static_cast<std::uint8_t>(1U << index % 8)))
                continue;
            highest = index;
            m_rates.addHT(index, isWide, false);
            if (shortGI)
                m_rates.addHT(index, isWide, true);
        }
        m_result.streams = static_cast<int>(highest / 8 + 1);
    }

    void readVHTRates(const PlacedElement& element)
    {
        constexpr std::uint8_t kNotSupported = 3;
        constexpr std::size_t kLowestTopIndex = 7;
        const auto map = element.byte(10); // the transmit map of streams 1 to 4
        if (!map)
            return;
        const bool shortGI[] = {false, m_shortGI20, m_shortGI40, m_shortGI80, m_shortGI160, false};
        int supported = 0;
        for (std::size_t stream = 1; stream <= 4; ++stream) {
            const std::uint8_t value = *map >> 2 * (stream - 1) & 0x03;
            if (value == kNotSupported)
                continue;
            ++supported;
            m_rates.addVHT(stream, kLowestTopIndex + value, m_width, false);
            if (shortGI[static_cast<std::size_t>(m_width)])
                m_rates.addVHT(stream, kLowestTopIndex + value, m_width, true);
        }
        if (supported > 0)
            m_result.streams = supported;
    }

    // Fourth walk: legacy rates, and what Cisco adds.
    void readLegacyRates(const PlacedElement& element)
    {
        switch (element.id) {
        case kSupportedRates:
        case kExtendedSupportedRates:
            for (const std::uint8_t octet : element.content())
                m_rates.addLegacy(octet);
            break;
        case kCiscoCCX4:
        case kVendorSpecific:
            if (element.length >= 5 && element.oui(2) == kCisco)
                readCiscoElement(element);
            break;
        default:
            break;
        }
    }

    void readCiscoElement(const PlacedElement& element)
    {
        constexpr std::uint8_t kDTPC = 0;
        constexpr std::uint8_t kClientMFP = 20;
        const auto value = element.byte(6);
        if (!value)
            return;
        if (element.byteOrZero(5) == kClientMFP)
            m_result.ccxClientMFP =
                *value & 0x01 ? QStringLiteral("Enabled") : QStringLiteral("Disabled");
        else if (element.byteOrZero(5) == kDTPC)
            m_result.ccxDTPC = *value;
    }

    void storeRates()
    {
        m_result.rates = m_rates.sorted();
        m_result.minBasicRate = 0;
        m_result.maxBasicRate = 0;
        for (const double rate : m_result.rates) {
            if (rate >= 0)
                continue;
            if (m_result.minBasicRate == 0)
                m_result.minBasicRate = static_cast<float>(-rate);
            m_result.maxBasicRate = static_cast<float>(-rate);
        }
    }

    void derivePhyMode()
    {
        if (m_dictionary.phyMode.value_or(0) != 0)
            return;
        // 9 Mbit/s is not among these: that is meant.
        const bool hasOFDM = hasAnyRate({6, 12, 18, 24, 36, 48, 54});
        m_result.phyMode = m_modeWord;
        if (isChannelOfBand(channel(), Band::k5GHz)) {
            // A network of ac does not also list a or n.
            if (m_modeWord != kPhyModeAC && hasOFDM)
                m_result.phyMode |= kPhyModeA;
        } else if (isChannelOfBand(channel(), Band::k2Dot4GHz)) {
            if (hasAnyRate({1, 2, 5.5, 11}))
                m_result.phyMode |= kPhyModeB;
            if (hasOFDM)
                m_result.phyMode |= kPhyModeG;
        }
    }

    bool hasAnyRate(std::initializer_list<double> wanted) const
    {
        return std::ranges::any_of(m_result.rates, [&](double rate) {
            return std::ranges::find(wanted, std::abs(rate)) != wanted.end();
        });
    }

    std::int64_t channel() const
    {
        return m_result.channel != 0 ? m_result.channel : m_dictionary.channelNumber.value_or(0);
    }

    /// By the channel of the previous scan: this one's is not settled during the first walk.
    bool was5GHz() const
    {
        return isChannelOfBand(m_previousChannel != 0 ? m_previousChannel
                                                      : m_dictionary.channelNumber.value_or(0),
                               Band::k5GHz);
    }

    const ScanDictionary& m_dictionary;
    NetworkAttributes m_result;
    std::int64_t m_previousChannel = 0;

    Amendments m_amendments;
    SecurityElements m_security;
    RateSet m_rates;
    ChannelWidth m_width = ChannelWidth::kUnknown;
    std::int64_t m_modeWord = 0;
    bool m_shortGI20 = false;
    bool m_shortGI40 = false;
    bool m_shortGI80 = false;
    bool m_shortGI160 = false;
    bool m_hasHTOperation = false;
};

} // namespace

NetworkAttributes attributesOf(const ScanDictionary& dictionary, NetworkAttributes previous)
{
    return Derivation(dictionary, std::move(previous)).run();
}

} // namespace tessara
