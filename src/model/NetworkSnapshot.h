#pragma once

#include "model/ScanDictionary.h"
#include "model/TSDataPoint.h"

#include <QColor>
#include <QString>

#include <optional>
#include <vector>

namespace tessara {

/// What a file keeps of a record: the raw data from which all else follows, and what the user gave
/// it. A copy, for other threads than the one that owns the record.
struct NetworkSnapshot {
    ScanDictionary network;
    std::vector<TSDataPoint> dataPoints; ///< oldest first
    QColor color;
    double lastSeen = 0; ///< seconds since 1970
    QString deviceName;  ///< empty if the record holds none
    /// The note; empty if it is known that there is none, and absent if nobody has asked for it.
    std::optional<QString> annotations;
};

} // namespace tessara
