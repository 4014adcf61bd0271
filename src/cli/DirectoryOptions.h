#pragma once

#include <QCommandLineParser>

namespace tessara {

/// --vendors FILE, --annotations FILE
void addDirectoryOptions(QCommandLineParser& parser);

/// Lets networks know their makers and their notes: from the files that the options name, or from
/// those of the user. @return what is wrong with a named file, or empty
QString installDirectories(const QCommandLineParser& parser);

} // namespace tessara
