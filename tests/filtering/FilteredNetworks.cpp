#include "filtering/FilteredNetworks.h"

#include "foundation/Directories.h"

#include <QHash>

namespace tessara {

namespace {

struct Row {
    const char16_t* ssid; ///< none: the network is hidden
    const char* bssid;
    int channel;
    int rssi; ///< dBm; 0: never received
    SecurityMode security;
    int phyMode;
    const char* elements; ///< in hexadecimal: HT and VHT Operation make the width, Country the code
    const char16_t* vendor;
    const char16_t* deviceName;
    const char16_t* annotations;
};

using enum SecurityMode;

#define OPERATION_20_MHZ "3d03000000"
#define OPERATION_40_MHZ "3d03000100"
#define OPERATION_80_MHZ OPERATION_40_MHZ "c005010000fcff"
#define OPERATION_160_MHZ OPERATION_40_MHZ "c005020000fcff"
#define OPERATION_80_80_MHZ OPERATION_40_MHZ "c005030000fcff"
#define COUNTRY_DE "0706444520010d14"
#define COUNTRY_US "0706555320010d14"

const Row kRows[] = {
    {u"Home", "00:1a:11:00:00:01", 6, -40, kWPA2Personal, 14, OPERATION_40_MHZ COUNTRY_DE,
     u"Cisco Systems", u"Living Room", u""},
    {u"Home Guest", "00:1A:11:00:00:02", 1, -71, kUnknown, 6, OPERATION_20_MHZ COUNTRY_DE,
     u"Cisco Systems", u"", u"15 euro, ask at the desk"},
    {u"Office 15", "0:1a:12:0:0:3", 36, -70, kWPA2Enterprise, 16, OPERATION_80_MHZ COUNTRY_US,
     u"Aruba", u"", u""},
    {u"n", "02:00:00:00:00:04", 149, -95, kWPAAndWPA2Personal, 9, OPERATION_40_MHZ, u"", u"", u""},
    {u"Straße 38", "02:00:00:00:00:05", 11, -94, kWPAPersonal, 6, OPERATION_20_MHZ, u"", u"", u""},
    {u"00:1A:zz café", "02:00:00:00:00:06", 14, 0, kWEP, 2, OPERATION_20_MHZ, u"", u"", u""},
    {nullptr, "02:00:00:00:00:07", 165, -20, kWPAEnterprise, 16, OPERATION_160_MHZ COUNTRY_US, u"",
     u"", u""},
    {u"the \"wpa2\" fan", "02:00:00:00:00:08", 100, -96, kDynamicWEP, 1, OPERATION_80_80_MHZ, u"",
     u"Aruba", u"!x"},
    {u"us 6 GHz", "02:00:00:00:00:09", 15, -97, kUnknown, 0, "", u"", u"", u""},
    {u"\U0001F600 ПРИВЕТ \U00010400", "02:00:00:00:00:0a", 64, -19, kWPAAndWPA2Enterprise, 25,
     OPERATION_20_MHZ, u"Home", u"", u"5GHz"},
};

/// Answers from the rows.
struct Answers final : VendorDirectory, DeviceNameDirectory, AnnotationsDirectory {
    using Texts = QHash<QString, QString>;
    static std::optional<QString> in(const Texts& texts, const QString& bssid)
    {
        return texts.contains(bssid) ? std::optional(texts[bssid]) : std::nullopt;
    }
    std::optional<QString> vendorFor(const QString& bssid) const override
    {
        return in(vendors, bssid);
    }
    std::optional<QString> deviceNameFor(const QString& bssid) const override
    {
        return in(deviceNames, bssid);
    }
    std::optional<QString> annotationsFor(const QString& bssid) const override
    {
        return in(notes, bssid);
    }
    void setAnnotations(const QString& bssid, const QString& note) override { notes[bssid] = note; }

    Texts vendors;
    Texts deviceNames;
    Texts notes;
};

} // namespace

NetworkList filteredNetworks()
{
    static Answers answers;
    Directories::installed() = {&answers, &answers, &answers};
    NetworkList networks;
    for (const Row& row : kRows) {
        ScanDictionary dictionary;
        dictionary.bssid = QString::fromLatin1(row.bssid);
        dictionary.channelNumber = row.channel;
        if (row.ssid)
            dictionary.ssid = QString::fromUtf16(row.ssid);
        if (*row.elements)
            dictionary.informationElementData = QByteArray::fromHex(row.elements);
        dictionary.phyMode = row.phyMode;
        dictionary.securityMode = static_cast<std::int64_t>(row.security);
        auto network = std::make_shared<TSNetwork>(dictionary, 0);
        answers.vendors[network->bssid()] = QString::fromUtf16(row.vendor);
        answers.deviceNames[network->bssid()] = QString::fromUtf16(row.deviceName);
        answers.notes[network->bssid()] = QString::fromUtf16(row.annotations);
        if (row.rssi != 0)
            network->addDataPoint({row.rssi, -92, -1, -1, 0});
        networks.push_back(std::move(network));
    }
    return networks;
}

} // namespace tessara
