#include "model/SecurityElements.h"

namespace tessara {

namespace {

// Organizations that number suites.
constexpr std::uint32_t kIEEE = 0x000FAC;
constexpr std::uint32_t kMicrosoft = 0x0050F2;

int cipherBit(std::uint8_t suite)
{
    switch (suite) {
    case 1:
        return 1; // WEP-40
    case 2:
        return 2; // TKIP
    case 4:
        return 4; // CCMP
    case 5:
        return 8; // WEP-104
    default:
        return 0;
    }
}

} // namespace

void SecurityElements::addRSN(const PlacedElement& element)
{
    constexpr std::size_t kShortestWithSuites = 9;
    constexpr std::uint8_t kManagementFrameProtectionCapable = 0x80;
    m_hasRSN = true;
    if (element.length < kShortestWithSuites)
        return;
    const std::size_t capabilities = readSuites(element, kIEEE, 8);
    m_protectsManagement |= element.has(capabilities, kManagementFrameProtectionCapable);
}

void SecurityElements::addWPA(const PlacedElement& element)
{
    m_hasWPA = true;
    readSuites(element, kMicrosoft, 12);
}

/// Reads the pairwise and the key management suites from the count of the former on.
/// @return the number of the byte behind them
std::size_t SecurityElements::readSuites(const PlacedElement& element, std::uint32_t oui,
                                         std::size_t number)
{
    // Of the counts only the low byte is taken; that of the key managements has a sign.
    const std::uint8_t pairwise = element.byteOrZero(number);
    number += 2;
    for (int i = 0; i < pairwise; ++i, number += 4) {
        if (element.oui(number) == oui)
            m_cipherType |= cipherBit(element.byteOrZero(number + 3));
    }
    const std::uint8_t managements = element.byteOrZero(number);
    constexpr std::uint8_t kSign = 0x80;
    number += 2;
    bool hasTransition = false;
    for (int i = 0; i < managements && !(managements & kSign); ++i, number += 4) {
        if (element.oui(number) != oui)
            continue;
        const std::uint8_t type = element.byteOrZero(number + 3);
        m_enterprise |= type == 1 || type == 3 || type == 5;
        hasTransition |= type == 3 || type == 4;
    }
    m_lacksTransition |= !hasTransition;
    return number;
}

SecurityMode SecurityElements::mode(SecurityMode given) const
{
    using enum SecurityMode;
    if (given != kUnknown && given != kWEP)
        return given;
    if (m_hasRSN && m_hasWPA)
        return m_enterprise ? kWPAAndWPA2Enterprise : kWPAAndWPA2Personal;
    if (m_hasWPA)
        return m_enterprise ? kWPAEnterprise : kWPAPersonal;
    if (m_hasRSN)
        return m_enterprise ? kWPA2Enterprise : kWPA2Personal;
    return given;
}

} // namespace tessara
