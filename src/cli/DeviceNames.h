#pragma once

#include <QCommandLineParser>

namespace tessara {

/// --device-names
void addDeviceNamesOption(QCommandLineParser& parser);

/// With the option, networks ask the access points around here for their names from now on.
void searchDeviceNames(const QCommandLineParser& parser);

/// The same, and waits until those have answered that do so soon: some seconds at the most.
void waitForDeviceNames(const QCommandLineParser& parser);

} // namespace tessara
