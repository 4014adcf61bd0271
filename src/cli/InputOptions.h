#pragma once

#include <QCommandLineParser>

#include <optional>

namespace tessara {

/// --sweep SECONDS
void addInputOptions(QCommandLineParser& parser);

/// How much time of a capture makes one scan.
/// @param error what is wrong with the option, if something is
/// @return none on an error
std::optional<double> sweepSeconds(const QCommandLineParser& parser, QString& error);

} // namespace tessara
