#include "cli/VendorsOption.h"

#include "foundation/Directories.h"
#include "persistence/TSVendorDatabaseHelper.h"

#include <QFileInfo>

namespace tessara {

void addVendorsOption(QCommandLineParser& parser)
{
    parser.addOption({QStringLiteral("vendors"),
                      QStringLiteral("Take the makers' names from this database."),
                      QStringLiteral("FILE")});
}

QString installVendors(const QCommandLineParser& parser)
{
    const QString file = parser.value(QStringLiteral("vendors"));
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

} // namespace tessara
