#include "cli/Command.h"
#include "cli/DeviceNames.h"
#include "cli/ListOptions.h"
#include "cli/ScanSession.h"
#include "foundation/Defaults.h"
#include "foundation/TerminationSignals.h"
#include "persistence/ResultsFile.h"
#include "scanning/SystemWiFiService.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>
#include <cmath>

namespace tessara {

namespace {

void addOptions(QCommandLineParser& parser)
{
    addListOptions(parser);
    addDeviceNamesOption(parser);
    parser.addOptions({
        {QStringLiteral("interface"),
         QStringLiteral("Scan with this interface; 'recorded:FILE' plays FILE as one."),
         QStringLiteral("NAME")},
        {QStringLiteral("duration"), QStringLiteral("Stop after this time (at Control-C)."),
         QStringLiteral("SECONDS")},
        {QStringLiteral("save"),
         QStringLiteral("Instead of a table, save the results to FILE (.tessara), or record the "
                        "scans to it (.jsonl, .jsonl.gz)."),
         QStringLiteral("FILE")},
        {QStringLiteral("watch"), QStringLiteral("Repaint the table in place every 2 seconds.")},
    });
}

/// The time to scan for, in seconds; 0 without the option, none where it is wrong.
std::optional<double> duration(const QCommandLineParser& parser)
{
    const QString text = parser.value(QStringLiteral("duration"));
    if (text.isEmpty())
        return 0.0;
    bool ok = false;
    const double seconds = text.toDouble(&ok);
    constexpr double kLongest = 30.0 * 24 * 3600;
    return ok && seconds > 0 && seconds <= kLongest ? std::optional(seconds) : std::nullopt;
}

ExitStatus run(const QCommandLineParser& parser, const QStringList& arguments)
{
    if (!arguments.isEmpty())
        return wrongUsage(QStringLiteral("scan takes no arguments, only options"));
    QString error;
    const auto list = listOptions(parser, error);
    if (!list)
        return wrongUsage(error);
    const auto seconds = duration(parser);
    if (!seconds)
        return wrongUsage(
            QStringLiteral("--duration takes a number of seconds above 0, a month at the most"));
    ScanSession::Options options{*list, std::nullopt, parser.isSet(QStringLiteral("watch"))};
    if (parser.isSet(QStringLiteral("save"))) {
        options.saveTo = parser.value(QStringLiteral("save"));
        if (!isRecordingName(*options.saveTo) && !isResultsFileName(*options.saveTo))
            return wrongUsage(
                QStringLiteral("--save %1: a file ends in .tessara, .jsonl or .jsonl.gz")
                    .arg(*options.saveTo));
    }
    if (options.watch && list->format != ListOptions::Format::kTable)
        return wrongUsage(QStringLiteral("--watch shows a table: it goes with no other format"));

    ScanRuntime runtime;
    TerminationSignals::block(); // for the threads that these start
    searchDeviceNames(parser);
    SystemWiFiService service(runtime.clock(), runtime.pause(), runtime.notifications());
    TerminationSignals::unblock(); // to read a recording may take long
    const QString name = parser.value(QStringLiteral("interface"));
    const auto interface =
        name.isEmpty() ? chooseInterface(service) : service.interfaceWithName(name);
    if (!interface) {
        if (name.isEmpty())
            complain(QStringLiteral("this machine has no Wi-Fi interface"));
        else if (!name.startsWith(QStringView(SystemWiFiService::kRecordedPrefix)))
            complain(QStringLiteral("there is no Wi-Fi interface '%1'").arg(name));
        return kFailed; // why a recording cannot be played has been told
    }

    // Goes before the runtime, which waits for the engine's thread: a second signal then ends the
    // program at once.
    const TerminationSignals signalsOfTheUser([] { QCoreApplication::quit(); });
    ScanSession session(runtime, interface, options);
    QObject::connect(&session, &ScanSession::failed, qApp, &QCoreApplication::quit);
    if (*seconds > 0) {
        QTimer::singleShot(std::chrono::milliseconds(std::llround(*seconds * 1000)), qApp,
                           &QCoreApplication::quit);
    }
    if (!session.start())
        return kFailed;
    QCoreApplication::exec();
    return session.finish();
}

} // namespace

const Command kScanCommand = {"scan", "",
                              "Scans until the duration is over or Control-C; ends with the table, "
                              "or with the file saved.",
                              addOptions, run};

} // namespace tessara
