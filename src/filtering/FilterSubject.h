#pragma once

#include "model/TSNetwork.h"

namespace tessara {

/// A network before a filter, with the texts that a record has to look up: they are looked up once
/// for all terms.
struct FilterSubject {
    explicit FilterSubject(const TSNetwork& record, bool first = true)
        : network(&record)
        , isFirst(first)
        , ssid(record.ssid())
        , deviceName(record.deviceName())
        , annotations(record.annotations())
        , vendor(record.vendorValue())
    {
    }

    const TSNetwork* network;
    bool isFirst; ///< of the list that is filtered
    QString ssid;
    QString deviceName;
    QString annotations;
    QString vendor;
};

} // namespace tessara
