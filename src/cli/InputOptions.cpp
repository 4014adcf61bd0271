#include "cli/InputOptions.h"

#include "scanning/capture/CaptureReader.h"

#include <cmath>

namespace tessara {

void addInputOptions(QCommandLineParser& parser)
{
    const QString usual = QString::number(CaptureReader::kDefaultSweepSeconds, 'f', 1);
    parser.addOption({QStringLiteral("sweep"),
                      QStringLiteral("How much time of a capture makes one scan (%1).").arg(usual),
                      QStringLiteral("SECONDS"), usual});
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
