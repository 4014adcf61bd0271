#pragma once

#include "cli/ListOptions.h"
#include "cli/StandardErrorPrompt.h"
#include "scanning/ScanCycle.h"
#include "scanning/ScanRuntime.h"
#include "scanning/recorded/RecordingWriter.h"

#include <QString>

#include <memory>
#include <optional>

namespace tessara {

/// Scanning in a terminal: a scan cycle whose view is the screen and, if wanted, a file.
class ScanSession final : public QObject, private ScanCycleViews {
    Q_OBJECT

public:
    struct Options {
        ListOptions list;
        std::optional<QString> saveTo; ///< a recording of all scans, or the results at the end
        bool watch = false;            ///< repaint the table at each tick
    };

    ScanSession(ScanRuntime& runtime, std::shared_ptr<CWInterface> interface, Options options);

    /// @return whether there is a place for the file
    bool start();
    /// Stops scanning, and prints the last table or puts the file in its place.
    ExitStatus finish();

Q_SIGNALS:
    /// Going on makes no sense: the file can't be written.
    void failed();

private:
    void filterAndSetNetworks(const NetworkList& networks) override;
    void setLeftFooterVisible(bool visible) override;

    void record();
    ExitStatus finishRecording();
    ExitStatus saveResults(double lastScanTime) const;
    void repaint();
    QString statusLine() const;

    Options m_options;
    std::shared_ptr<CWInterface> m_interface;
    StandardErrorPrompt m_prompt;
    DisplayPipeline m_pipeline;
    std::unique_ptr<RecordingWriter> m_writer;
    SharedScanResults m_recorded; ///< the latest results that the file has
    bool m_ownsScreen = false;    ///< the table has the terminal to itself
    Clock& m_clock;
    ScanCycle m_cycle; // last: it calls the above
};

} // namespace tessara
