#pragma once

#include <QCommandLineParser>

namespace tessara {

/// --default KEY=VALUE, --no-settings
void addSettingsOptions(QCommandLineParser& parser);

/// Attaches the program's settings as the options say. @return what is wrong with them, or empty
QString applySettingsOptions(const QCommandLineParser& parser);

} // namespace tessara
