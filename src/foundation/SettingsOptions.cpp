#include "foundation/SettingsOptions.h"

#include "foundation/Defaults.h"

namespace tessara {

void addSettingsOptions(QCommandLineParser& parser)
{
    parser.addOptions({
        {QStringLiteral("default"),
         QStringLiteral("Use VALUE for the setting KEY in this run (repeatable)."),
         QStringLiteral("KEY=VALUE")},
        {QStringLiteral("no-settings"),
         QStringLiteral("Start from the registered defaults instead of the user's settings.")},
    });
}

QString applySettingsOptions(const QCommandLineParser& parser)
{
    Defaults& defaults = Defaults::standard();
    if (!parser.isSet(QStringLiteral("no-settings")))
        defaults.attach(std::make_unique<QSettings>());
    for (const QString& assignment : parser.values(QStringLiteral("default"))) {
        const qsizetype equals = assignment.indexOf(u'=');
        if (equals < 1)
            return QStringLiteral("--default takes KEY=VALUE, not '%1'").arg(assignment);
        const QString key = assignment.left(equals);
        const QString value = assignment.mid(equals + 1);
        if (!defaultEntry(key))
            return QStringLiteral("there is no setting '%1'").arg(key);
        if (!defaults.overrideForThisRun(key, value))
            return QStringLiteral("'%1' is no value for the setting '%2'").arg(value, key);
    }
    return {};
}

} // namespace tessara
