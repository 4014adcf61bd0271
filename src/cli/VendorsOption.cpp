#include "cli/VendorsOption.h"

#include "foundation/Directories.h"
#include "persistence/TSVendorDatabaseHelper.h"

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
        shared.expandDatabase();
        Directories::installed().vendors = &shared;
        return {};
    }
    static TSVendorDatabaseHelper named({.database = file});
    Directories::installed().vendors = &named;
    return named.load();
}

} // namespace tessara
