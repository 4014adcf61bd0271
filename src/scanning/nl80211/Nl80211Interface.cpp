#include "scanning/nl80211/Nl80211Interface.h"

#include "foundation/Localized.h"
#include "foundation/Logging.h"
#include "scanning/nl80211/Capability.h"
#include "scanning/nl80211/InterfaceInfo.h"
#include "scanning/nl80211/Power.h"
#include "scanning/nl80211/Rfkill.h"
#include "scanning/nl80211/ScanDump.h"
#include "scanning/nl80211/ScanRun.h"
#include "scanning/nl80211/StationInfo.h"
#include "scanning/nl80211/SurveyNoise.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <mutex>

namespace tessara {

namespace {

CWError failure(const QString& description)
{
    return {CWError::kUnspecified, description};
}

/// What the kernel's refusals mean here, where its own words do not say it.
QString descriptionOf(int errorNumber, const QString& interfaceName)
{
    switch (errorNumber) {
    case ENODEV:
        return localized("The interface %1 is gone").arg(interfaceName);
    case ENETDOWN:
        return localized("The interface %1 is down or its radio is off").arg(interfaceName);
    case EBUSY:
        return localized("The radio of %1 is busy").arg(interfaceName);
    case EOPNOTSUPP:
        return localized("The driver of %1 does not support this").arg(interfaceName);
    case ENOENT:
        return localized("The kernel has no nl80211");
    default:
        return QStringLiteral("%1: %2").arg(interfaceName,
                                            QString::fromLocal8Bit(std::strerror(errorNumber)));
    }
}

CWError timeout()
{
    return {CWError::kTimeout, localized("The scan did not end in time")};
}

/// Whether all switches stand, or could be set, as wished.
bool setSoftBlocked(const std::vector<RfkillSwitch>& switches, bool blocked)
{
    return std::ranges::all_of(switches, [&](const RfkillSwitch& rfkill) {
        return rfkill.isSoftBlocked == blocked || setSoftBlocked(rfkill, blocked) == 0;
    });
}

void logCachedResultsOnly(const QString& reason)
{
    static std::once_flag once;
    std::call_once(once, [&] {
        qCWarning(lcScanning, "No privilege to scan, and %ls: showing what the kernel last heard.",
                  qUtf16Printable(reason));
    });
}

} // namespace

Nl80211Interface::Nl80211Interface(QString name, NetworkManagerClient networkManager, Pause& pause)
    : m_name(std::move(name))
    , m_networkManager(std::move(networkManager))
    , m_pause(pause)
{
}

bool Nl80211Interface::powerOn() const
{
    return isPowerOn(m_name);
}

std::optional<CWError> Nl80211Interface::setPower(bool on)
{
    const auto switches = rfkillSwitches(m_name);
    if (on && std::ranges::any_of(switches, &RfkillSwitch::isHardBlocked))
        return failure(
            localized("A switch or key of this machine keeps the radio of %1 off").arg(m_name));
    const bool wasBlocked = std::ranges::any_of(switches, &RfkillSwitch::isBlocked);
    const bool isWithinReach = on || !switches.empty();
    if (!isWithinReach || !setSoftBlocked(switches, !on)) {
        if (const auto reason = m_networkManager.setWirelessEnabled(on))
            return failure(
                localized("No permission to switch the radio of %1, and %2").arg(m_name, *reason));
    }
    // The kernel takes an interface down with its radio, but does not bring it up again.
    if (!on || isInterfaceUp(m_name) || isBroughtUpByNetworkManager(wasBlocked))
        return std::nullopt;
    return failure(localized("The interface %1 is down: bring %1 up").arg(m_name));
}

bool Nl80211Interface::isBroughtUpByNetworkManager(bool wasBlocked) const
{
    if (!m_networkManager.manages(m_name))
        return false;
    // Where nothing was blocked and Wi-Fi is enabled, somebody else wants the interface down.
    if (!wasBlocked && m_networkManager.wirelessEnabled() == true)
        return false;
    return !m_networkManager.setWirelessEnabled(true);
}

std::optional<BssEntry> Nl80211Interface::associatedEntry() const
{
    const auto info = readInterface(m_name);
    if (!info)
        return std::nullopt;
    for (BssEntry& entry : readScanDump(info->index).entries) {
        if (entry.isAssociated)
            return std::move(entry);
    }
    return std::nullopt;
}

std::optional<QString> Nl80211Interface::bssid() const
{
    // The list of stations is short; the scan results, which tell it too, are not.
    const auto info = readInterface(m_name);
    return info ? readAssociatedBSSID(info->index) : std::nullopt;
}

std::optional<QString> Nl80211Interface::ssid() const
{
    const auto name = ssidData();
    return name ? std::optional(QString::fromUtf8(*name)) : std::nullopt;
}

std::optional<QByteArray> Nl80211Interface::ssidData() const
{
    const auto info = readInterface(m_name);
    if (info && !info->ssidData.isEmpty())
        return info->ssidData;
    const auto entry = associatedEntry();
    return entry ? std::optional(entry->ssidData()) : std::nullopt;
}

std::optional<CWChannel> Nl80211Interface::wlanChannel() const
{
    const auto info = readInterface(m_name);
    if (info && info->channel)
        return info->channel;
    const auto entry = associatedEntry();
    const auto number = entry ? channelOfFrequency(entry->frequency) : std::nullopt;
    if (!number)
        return std::nullopt;
    return CWChannel{*number, channelBandForChannel(*number), ChannelWidth::kUnknown};
}

double Nl80211Interface::transmitRate() const
{
    const auto info = readInterface(m_name);
    return info ? readTransmitRate(info->index).value_or(0) : 0;
}

std::vector<CWNetwork> Nl80211Interface::cachedScanResults() const
{
    const auto info = readInterface(m_name);
    return info ? results(*info, std::nullopt, std::nullopt).networks : std::vector<CWNetwork>();
}

CWScan Nl80211Interface::scanForNetworksWithSSID(const std::optional<QByteArray>& ssid)
{
    const auto info = readInterface(m_name);
    if (!info)
        return {{}, failure(descriptionOf(ENODEV, m_name))};
    // The kernel would say so too, but only to those who may scan.
    if (!powerOn())
        return {{}, failure(descriptionOf(ENETDOWN, m_name))};
    const ScanRun run = runScan(*info, ssid, m_pause);
    switch (run.end) {
    case ScanEnd::kFinished:
        return results(*info, run.begun, std::nullopt);
    case ScanEnd::kAborted:
        return results(*info, run.begun, failure(localized("The scan was cut short")));
    case ScanEnd::kTimedOut:
        return results(*info, run.begun, timeout());
    case ScanEnd::kShutDown:
        return {{}, failure(localized("The program ends"))};
    case ScanEnd::kRefused:
        break;
    }
    if (run.error == EPERM || run.error == EACCES)
        return scanByNetworkManager(*info, ssid);
    return {{}, failure(descriptionOf(run.error, m_name))};
}

CWScan Nl80211Interface::scanByNetworkManager(const InterfaceInfo& info,
                                              const std::optional<QByteArray>& ssid)
{
    const NetworkManagerScan scan = m_networkManager.scan(m_name, ssid, m_pause);
    switch (scan.end) {
    case NetworkManagerScan::End::kFinished:
        return results(info, scan.lastScan - kLongestScan, std::nullopt);
    case NetworkManagerScan::End::kTimedOut:
        return results(info, scan.lastScan - kLongestScan, timeout());
    case NetworkManagerScan::End::kShutDown:
        return {{}, failure(localized("The program ends"))};
    case NetworkManagerScan::End::kUnavailable:
        break;
    }
    logCachedResultsOnly(scan.reason);
    return results(info, std::nullopt, std::nullopt);
}

QString Nl80211Interface::scanMethod() const
{
    if (mayTriggerScans())
        return localized("nl80211 (own scans)");
    if (const auto obstacle = m_networkManager.obstacle(m_name))
        return localized("cached results only: no privilege to scan, and %1").arg(*obstacle);
    return localized("NetworkManager (RequestScan)");
}

CWScan Nl80211Interface::results(const InterfaceInfo& info, std::optional<BootTime> seenSince,
                                 std::optional<CWError> error) const
{
    ScanDump dump = readScanDump(info.index);
    if (dump.error != 0)
        return {{}, failure(descriptionOf(dump.error, m_name))};
    return {scanResults(std::move(dump.entries), readChannelNoise(info.index), seenSince),
            std::move(error)};
}

} // namespace tessara
