#include "cli/DirectoryOptions.h"

#include "foundation/Directories.h"
#include "persistence/TSAnnotationsHelper.h"
#include "persistence/TSVendorDatabaseHelper.h"

#include <QFileInfo>

namespace tessara {

namespace {

QString installVendors(const QString& file)
{
    if (file.isEmpty()) {
        TSVendorDatabaseHelper& shared = TSVendorDatabaseHelper::sharedDatabase();
        // A newer version replaces the database when its window starts; here one is enough.
        if (!QFileInfo::exists(shared.pathToDatabase()))
            shared.expandDatabase();
        Directories::installed().vendors = &shared;
        return {};
    }
    static TSVendorDatabaseHelper named({.database = file});
    Directories::installed().vendors = &named;
    return named.load();
}

QString installAnnotations(const QString& file)
{
    if (file.isEmpty()) {
        Directories::installed().annotations = &TSAnnotationsHelper::sharedAnnotations();
        return {};
    }
    static TSAnnotationsHelper named(file);
    Directories::installed().annotations = &named;
    return named.load();
}

} // namespace

void addDirectoryOptions(QCommandLineParser& parser)
{
    parser.addOptions({
        {QStringLiteral("vendors"), QStringLiteral("Take the makers' names from this database."),
         QStringLiteral("FILE")},
        {QStringLiteral("annotations"),
         QStringLiteral("Take the notes on networks from this file (annotations.plist)."),
         QStringLiteral("FILE")},
    });
}

QString installDirectories(const QCommandLineParser& parser)
{
    const QString error = installVendors(parser.value(QStringLiteral("vendors")));
    return error.isEmpty() ? installAnnotations(parser.value(QStringLiteral("annotations")))
                           : error;
}

} // namespace tessara
