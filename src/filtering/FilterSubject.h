#pragma once

#include "filtering/FilterText.h"
#include "model/TSNetwork.h"

namespace tessara {

/// A network before a filter, with its texts without case: they are looked up and folded once for
/// all terms.
struct FilterSubject {
    explicit FilterSubject(const TSNetwork& record, bool first = true)
        : network(&record)
        , isFirst(first)
        , bssid(caseFolded(record.bssid()))
        , ssid(caseFolded(record.ssid()))
        , deviceName(caseFolded(record.deviceName()))
        , annotations(caseFolded(record.annotations()))
        , vendor(caseFolded(record.vendorValue()))
        , countryCode(caseFolded(record.countryCodeValue()))
        , nameMarks(characterMarks(ssid) | characterMarks(deviceName) |
                    characterMarks(annotations) | characterMarks(vendor))
    {
    }

    const TSNetwork* network;
    bool isFirst; ///< of the list that is filtered
    QString bssid;
    QString ssid; ///< this and the next three are the names
    QString deviceName;
    QString annotations;
    QString vendor;
    QString countryCode;
    std::uint64_t nameMarks; ///< of the four names together
};

} // namespace tessara
