#include "charts/OffscreenApplication.h"
#include "cli/Command.h"
#include "cli/DirectoryOptions.h"
#include "cli/Terminal.h"
#include "foundation/SettingsOptions.h"

#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <csignal>
#include <memory>
#include <new>

using namespace tessara;

namespace {

void printCommands(QTextStream& out)
{
    out << "Usage: tessara-cli COMMAND [options]\n"
           "Tessara's parts without a window.\n\n"
           "Commands:\n";
    for (const Command& command : commands()) {
        out << "  " << command.name << ' ' << command.synopsis << "\n      " << command.summary
            << '\n';
    }
    out << "\n'tessara-cli COMMAND --help' lists the options of a command.\n"
           "Exit status: 0 done, 1 the work failed, 2 wrong usage.\n";
}

ExitStatus runCommand(const Command& command, const QStringList& words)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromUtf8(command.summary));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help."));
    command.addOptions(parser);
    addSettingsOptions(parser);
    addDirectoryOptions(parser);
    parser.addOption(help);
    if (!parser.parse(words))
        return wrongUsage(parser.errorText());
    if (parser.isSet(help)) {
        const QString text = parser.helpText(); // its first line knows nothing of commands
        QTextStream(stdout) << "Usage: tessara-cli " << command.name << " [options] "
                            << command.synopsis << text.mid(text.indexOf(u'\n'));
        return kDone;
    }
    if (const QString error = applySettingsOptions(parser); !error.isEmpty())
        return wrongUsage(error);
    if (const QString error = installDirectories(parser); !error.isEmpty()) {
        complain(error);
        return kFailed;
    }
    return command.run(parser, parser.positionalArguments().mid(1));
}

} // namespace

int main(int argc, char** argv)
{
    setUpCharacterWidths();
    // A reader that goes away is told by a failed write; what is being recorded is still saved.
    std::signal(SIGPIPE, SIG_IGN);
    const QString name = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    const auto found = std::ranges::find(
        commands(), name, [](const Command& command) { return QString::fromLatin1(command.name); });
    const bool paints = found != commands().end() && found->paints;
    const std::unique_ptr<QCoreApplication> application =
        paints ? makeOffscreenApplication(argc, argv)
               : std::make_unique<QCoreApplication>(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Tessara"));
    QCoreApplication::setApplicationName(QStringLiteral("tessara"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSARA_VERSION));
    qSetMessagePattern(QStringLiteral("tessara-cli: %{message}"));

    const QStringList words = QCoreApplication::arguments();
    if (name == QLatin1String("--version") || name == QLatin1String("-v")) {
        QTextStream(stdout) << "tessara-cli " << TESSARA_VERSION << '\n';
        return kDone;
    }
    if (name == QLatin1String("--help") || name == QLatin1String("-h") ||
        name == QLatin1String("help")) {
        QTextStream out(stdout);
        printCommands(out);
        return kDone;
    }
    if (found == commands().end()) {
        return wrongUsage(name.isEmpty() ? QStringLiteral("which command?")
                                         : QStringLiteral("there is no command '%1'").arg(name));
    }
    try {
        return runCommand(*found, words);
    } catch (const std::bad_alloc&) {
        complain(QStringLiteral("there is not enough memory for this"));
        return kFailed;
    }
}
