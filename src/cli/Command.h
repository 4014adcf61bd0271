#pragma once

#include <QCommandLineParser>

#include <span>

namespace tessara {

/// How a command ended, as the shell sees it.
enum ExitStatus : int {
    kDone = 0,
    kFailed = 1,     ///< the input could not be read or the work failed
    kWrongUsage = 2, ///< the words of the command line are off
};

/// One command of the program. Results go to standard output, everything else to standard error.
struct Command {
    const char* name;
    const char* synopsis; ///< its arguments
    const char* summary;
    void (*addOptions)(QCommandLineParser& parser);
    /// @param arguments what stands on the command line besides options, without the name
    ExitStatus (*run)(const QCommandLineParser& parser, const QStringList& arguments);
    bool paints = false; ///< it needs fonts, which cost time to load
};

std::span<const Command> commands();

// One file each.
extern const Command kNetworksCommand;
extern const Command kElementsCommand;
extern const Command kConvertCommand;
extern const Command kScanCommand;
extern const Command kInterfacesCommand;
extern const Command kChartCommand;

/// Writes all that was printed to where standard output goes.
/// @return kDone, or kFailed with a complaint if that failed
ExitStatus finishOutput();

/// Writes "tessara-cli: MESSAGE" to standard error.
void complain(const QString& message);
/// The same, pointing at --help. @return kWrongUsage
ExitStatus wrongUsage(const QString& message);

} // namespace tessara
