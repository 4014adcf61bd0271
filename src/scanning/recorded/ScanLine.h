#pragma once

#include "scanning/recorded/ScanReader.h"

#include <QByteArray>
#include <QJsonObject>

#include <variant>

namespace tessara {

/// One line of a recording, with its line feed.
QByteArray lineOfScan(const RecordedScan& scan);

/// The scan that the object of a line holds, or the reason why it is none.
std::variant<RecordedScan, QString> scanOfObject(const QJsonObject& object);

} // namespace tessara
