#include "cli/InputOptions.h"

#include <cmath>

namespace tessara {

void addInputOptions(QCommandLineParser& parser)
{
    parser.addOption({QStringLiteral("sweep"),
                      QStringLiteral("How much time of a capture makes one scan (3.0)."),
                      QStringLiteral("SECONDS"), QStringLiteral("3.0")});
}

std::optional<double> sweepSeconds(const QCommandLineParser& parser, QString& error)
{
    const QString text = parser.value(QStringLiteral("sweep"));
    bool ok = false;
    const double seconds = text.toDouble(&ok);
    if (ok && std::isfinite(seconds) && seconds > 0)
        return seconds;
    error = QStringLiteral("--sweep takes a number of seconds above 0, not '%1'").arg(text);
    return std::nullopt;
}

} // namespace tessara
