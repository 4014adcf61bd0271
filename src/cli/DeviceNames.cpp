#include "cli/DeviceNames.h"

#include "enrichment/TSNetServiceBrowser.h"

#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace tessara {

namespace {

const QString kDeviceNames = QStringLiteral("device-names");
constexpr std::chrono::seconds kLongestWait{7}; // a search of a second, five for an answer

} // namespace

void addDeviceNamesOption(QCommandLineParser& parser)
{
    parser.addOption(
        {kDeviceNames,
         QStringLiteral("Ask the access points on the local network for their own names, by way of "
                        "Avahi.")});
}

void searchDeviceNames(const QCommandLineParser& parser)
{
    if (!parser.isSet(kDeviceNames))
        return;
    TSNetServiceBrowser& browser = TSNetServiceBrowser::sharedBrowser();
    Directories::installed().deviceNames = &browser;
    browser.searchServices();
}

void waitForDeviceNames(const QCommandLineParser& parser)
{
    if (!parser.isSet(kDeviceNames))
        return;
    QEventLoop loop;
    QObject::connect(&TSNetServiceBrowser::sharedBrowser(), &TSNetServiceBrowser::didLookUpServices,
                     &loop, &QEventLoop::quit);
    QTimer::singleShot(kLongestWait, &loop, &QEventLoop::quit);
    searchDeviceNames(parser);
    loop.exec();
}

} // namespace tessara
