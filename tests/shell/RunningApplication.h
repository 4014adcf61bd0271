#pragma once

#include "enrichment/FakeNetServices.h"
#include "enrichment/RecordingVoice.h"
#include "foundation/Defaults.h"
#include "foundation/Directories.h"
#include "scanning/ScriptedInterface.h"
#include "shell/AppDelegate.h"
#include "support/ManualClock.h"

#include <QAction>
#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <stdexcept>

namespace tessara {

class OneInterfaceService final : public WiFiService {
public:
    std::shared_ptr<CWInterface> interface() override { return wifi; }
    std::shared_ptr<CWInterface> interfaceWithName(const QString&) override { return nullptr; }
    QStringList interfaceNames() override { return {}; }

    std::shared_ptr<ScriptedInterface> wifi = std::make_shared<ScriptedInterface>();
};

/// Runs what is queued, and what that queues in turn.
inline void settle()
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

/// The whole application with a folder of its own, on time that is moved by hand and an engine
/// whose thread's body runs when it is told to.
class RunningApplication {
public:
    RunningApplication()
    {
        Directories::installed().annotations = &annotations;
        pause.shutDown = true; // one round of the engine's loop at each run of its body
        attachStore();
    }
    ~RunningApplication()
    {
        delegate.reset();
        Directories::installed() = {};
        Defaults::standard().attach(nullptr);
    }
    RunningApplication(const RunningApplication&) = delete;
    RunningApplication& operator=(const RunningApplication&) = delete;

    /// A new run of the program, or what a new run would read.
    void attachStore()
    {
        Defaults::standard().attach(std::make_unique<QSettings>(
            directory.filePath(QStringLiteral("tessara.conf")), QSettings::IniFormat));
    }

    void launch(const QString& file = {})
    {
        delegate = std::make_unique<AppDelegate>(
            service, vendors, annotations, deviceNames, voice,
            EngineServices{clock, pause, notifications,
                           [this](auto body) { bodies.push_back(std::move(body)); }});
        delegate->applicationWillFinishLaunching(file);
        settle();
    }

    void engineScans(std::vector<CWNetwork> networks)
    {
        service.wifi->scans = {{std::move(networks), {}}};
        bodies.back()();
        settle();
    }

    void tick()
    {
        clock.advance(ScanCycle::kMergeInterval);
        settle();
    }

    MainWindow& window() { return delegate->window(); }

    QAction& action(const char* text)
    {
        for (QAction* each : window().findChildren<QAction*>()) {
            if (each->text() == QString::fromUtf8(text))
                return *each;
        }
        throw std::out_of_range(text);
    }

    QTemporaryDir directory;
    ManualClock clock;
    ManualPause pause{clock};
    NotificationCenter notifications;
    OneInterfaceService service;
    std::vector<std::function<void()>> bodies; ///< of the engines, the newest last
    TSVendorDatabaseHelper vendors{
        {.database = directory.filePath(QStringLiteral("vendors.plist"))}};
    TSAnnotationsHelper annotations{directory.filePath(QStringLiteral("annotations.plist"))};
    FakeNetServices netServices;
    TSNetServiceBrowser deviceNames{netServices, clock};
    RecordingVoice voice;
    std::unique_ptr<AppDelegate> delegate;
};

} // namespace tessara
