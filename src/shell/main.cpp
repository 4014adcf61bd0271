#include "enrichment/TextToSpeechVoice.h"
#include "foundation/Directories.h"
#include "foundation/SettingsOptions.h"
#include "foundation/TerminationSignals.h"
#include "persistence/TSAnnotationsHelper.h"
#include "persistence/TSVendorDatabaseHelper.h"
#include "scanning/ScanRuntime.h"
#include "scanning/StateInfo.h"
#include "scanning/SystemWiFiService.h"
#include "shell/AppDelegate.h"
#include "shell/Translations.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QLocale>
#include <QTextStream>

#include <algorithm>
#include <memory>
#include <set>
#include <string_view>

using namespace tessara;

namespace {

/// One without a window where only a text is asked for: there may be no display.
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv)
{
    const std::set<std::string_view> questions{"-h", "--help", "--help-all", "-v", "--version"};
    char** const end = std::find(argv, argv + argc, std::string_view("--"));
    const bool asks =
        std::any_of(argv, end, [&](const char* word) { return questions.contains(word); });
    if (asks)
        return std::make_unique<QCoreApplication>(argc, argv);
    return std::make_unique<QApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv)
{
    TerminationSignals::block(); // the application object starts threads
    const auto application = makeApplication(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tessara"));
    QApplication::setApplicationName(QStringLiteral("tessara"));
    QApplication::setApplicationVersion(QStringLiteral(TESSARA_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("tessara"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A Wi-Fi network analyser."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("file"),
                                 QStringLiteral("Show the results of this file (.tessara)."),
                                 QStringLiteral("[FILE]"));
    addSettingsOptions(parser);
    parser.process(*application);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/tessara.svg")));
    // The main window alone decides when the process ends.
    QApplication::setQuitOnLastWindowClosed(false);
    QString error = applySettingsOptions(parser);
    if (parser.positionalArguments().size() > 1)
        error = QStringLiteral("one file at a time");
    if (!error.isEmpty()) {
        QTextStream(stderr) << "tessara: " << error << Qt::endl;
        return 2;
    }

    installTranslations(QLocale::system().uiLanguages());

    ScanRuntime runtime;
    SystemWiFiService wifi(runtime.clock(), runtime.pause(), runtime.notifications());
    TSVendorDatabaseHelper& vendors = TSVendorDatabaseHelper::sharedDatabase();
    Directories::installed().vendors = &vendors;
    TSAnnotationsHelper& annotations = TSAnnotationsHelper::sharedAnnotations();
    Directories::installed().annotations = &annotations;
    TSNetServiceBrowser& deviceNames = TSNetServiceBrowser::sharedBrowser();
    Directories::installed().deviceNames = &deviceNames;
    TextToSpeechVoice voice;
    AppDelegate delegate(wifi, vendors, annotations, deviceNames, voice, runtime.engineServices());
    const TerminationSignals signalsOfTheUser([&delegate] { delegate.terminate(); });
    QObject::connect(
        &delegate, &AppDelegate::didTerminate, application.get(), [] { QApplication::exit(0); },
        Qt::QueuedConnection);
    delegate.applicationWillFinishLaunching(parser.positionalArguments().value(0));
    return QApplication::exec();
}
