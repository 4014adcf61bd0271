#include "cli/DirectoryOptions.h"

#include "cli/Command.h"
#include "foundation/Directories.h"
#include "persistence/TSAnnotationsHelper.h"
#include "persistence/TSVendorDatabaseHelper.h"

#include <QFileInfo>

namespace tessara {

namespace {

const QString kVendors = QStringLiteral("vendors");
const QString kAnnotations = QStringLiteral("annotations");

QString installVendors(const QCommandLineParser& parser)
{
    if (!parser.isSet(kVendors)) {
        TSVendorDatabaseHelper& shared = TSVendorDatabaseHelper::sharedDatabase();
        // A newer version replaces the database when its window starts; here one is enough.
        if (!QFileInfo::exists(shared.pathToDatabase()))
            shared.expandDatabase();
        Directories::installed().vendors = &shared;
        return {};
    }
    static TSVendorDatabaseHelper named({.database = parser.value(kVendors)});
    Directories::installed().vendors = &named;
    return named.load();
}

QString installAnnotations(const QCommandLineParser& parser)
{
    // Those of the user are only read: a file that is damaged stays where the user finds it.
    const bool isNamed = parser.isSet(kAnnotations);
    const QString file = isNamed ? parser.value(kAnnotations) : TSAnnotationsHelper::standardPath();
    static TSAnnotationsHelper annotations(file);
    Directories::installed().annotations = &annotations;
    if (isNamed)
        return annotations.load();
    if (QFileInfo::exists(file)) {
        if (const QString error = annotations.load(); !error.isEmpty())
            complain(error);
    }
    return {};
}

} // namespace

void addDirectoryOptions(QCommandLineParser& parser)
{
    parser.addOptions({
        {kVendors, QStringLiteral("Take the makers' names from this database."),
         QStringLiteral("FILE")},
        {kAnnotations,
         QStringLiteral("Take the notes on networks from this file (annotations.plist)."),
         QStringLiteral("FILE")},
    });
}

QString installDirectories(const QCommandLineParser& parser)
{
    const QString error = installVendors(parser);
    return error.isEmpty() ? installAnnotations(parser) : error;
}

} // namespace tessara
