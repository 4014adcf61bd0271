#pragma once

#include "elements/TSInfoElement.h"

#include <QJsonArray>

namespace tessara {

/// Decoded elements for programs: an array of `{"ieID", "ieLength", "ieName", "ieSummary",
/// "ieIdentifier", "ieDescription", "fields": [..]}`. Of a row, what is absent stays absent.
QJsonArray elementsJSON(const std::vector<TSInfoElement>& elements);

} // namespace tessara
