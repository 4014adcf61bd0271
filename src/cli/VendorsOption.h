#pragma once

#include <QCommandLineParser>

namespace tessara {

/// --vendors FILE
void addVendorsOption(QCommandLineParser& parser);

/// Lets networks know their makers: from the file that the option names, or from the database of
/// the user. @return what is wrong with the file, or empty
QString installVendors(const QCommandLineParser& parser);

} // namespace tessara
