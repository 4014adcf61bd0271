#pragma once

#include <QString>

namespace tessara {

class CWInterface;

/// The name of the program, and how its window's title starts while it shows no file.
inline constexpr char16_t kApplicationTitle[] = u"Tessara";

/// What the status line says of the interface and of what is shown.
struct StateInfo {
    QString title;
    QString toolTip; ///< empty for none

    bool operator==(const StateInfo&) const = default;
};

/// @param windowTitle tells what is shown: a scan, the clipboard's data, or the path of a file
/// @param interface none if the machine has none
StateInfo stateInfo(bool isScanning, const QString& windowTitle, const CWInterface* interface);

} // namespace tessara
