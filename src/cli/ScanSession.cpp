#include "cli/ScanSession.h"

#include "cli/TableText.h"
#include "cli/Terminal.h"
#include "foundation/Defaults.h"
#include "foundation/HarmlessText.h"
#include "persistence/ResultsFile.h"
#include "scanning/StateInfo.h"

#include <QSaveFile>
#include <QTextStream>

#include <algorithm>
#include <utility>

namespace tessara {

namespace {

// What a terminal is told (ECMA-48, and xterm's second screen, which leaves the first as it was).
constexpr const char* kEnterScreen = "\x1b[?1049h";
constexpr const char* kLeaveScreen = "\x1b[?1049l";
constexpr const char* kHome = "\x1b[H";
constexpr const char* kClearLine = "\x1b[K";
constexpr const char* kClearBelow = "\x1b[J";

} // namespace

ScanSession::ScanSession(ScanRuntime& runtime, std::shared_ptr<CWInterface> interface,
                         Options options)
    : m_options(std::move(options))
    , m_interface(std::move(interface))
    , m_clock(runtime.clock())
    , m_cycle(m_interface, runtime.engineServices(), *this, m_prompt)
{
    m_pipeline.setShownKinds(ShownKinds::fromDefaults(Defaults::standard()));
    m_pipeline.setSortDescriptors(m_options.list.sort);
    m_pipeline.onFilter(m_options.list.filter);
    if (m_options.saveTo && isRecordingName(*m_options.saveTo)) {
        m_writer = std::make_unique<RecordingWriter>(*m_options.saveTo);
        connect(&runtime.notifications(), &NotificationCenter::scanDidEnd, this,
                &ScanSession::record, Qt::QueuedConnection);
    }
}

bool ScanSession::start()
{
    if (m_writer && !m_writer->error().isEmpty()) {
        complain(m_writer->error());
        return false;
    }
    if (m_options.saveTo && !m_writer) {
        QSaveFile place(*m_options.saveTo);
        if (!place.open(QIODevice::WriteOnly)) {
            complain(QStringLiteral("%1: %2").arg(*m_options.saveTo, place.errorString()));
            return false;
        }
    }
    m_cycle.doStart();
    return true;
}

ExitStatus ScanSession::finish()
{
    const double lastScanTime = m_cycle.lastScanTime();
    m_cycle.doStop();
    if (m_ownsScreen)
        QTextStream(stdout) << kLeaveScreen;
    if (m_writer)
        return finishRecording();
    if (m_options.saveTo)
        return saveResults(lastScanTime);
    return printList(m_pipeline, m_options.list, CellContext::fromDefaults(false), lastScanTime);
}

ExitStatus ScanSession::saveResults(double lastScanTime) const
{
    QString error;
    const auto results = ResultsSnapshot::of(m_cycle.networks(), lastScanTime);
    if (writeResultsFile(
            *m_options.saveTo, results, [](double) { return true; }, error))
        return kDone;
    complain(QStringLiteral("%1: %2").arg(*m_options.saveTo, error));
    return kFailed;
}

ExitStatus ScanSession::finishRecording()
{
    if (m_recorded && m_writer->finish())
        return kDone;
    complain(m_recorded ? m_writer->error() : QStringLiteral("nothing was recorded"));
    return kFailed;
}

void ScanSession::filterAndSetNetworks(const NetworkList& networks)
{
    m_pipeline.filterAndSetNetworks(networks);
}

void ScanSession::setLeftFooterVisible(bool visible)
{
    // Shown at the end of each delivery: by then all of it is known.
    if (visible && m_options.watch)
        repaint();
}

void ScanSession::record()
{
    const SharedScanResults results = m_cycle.latestResults();
    if (!results || results == m_recorded)
        return;
    m_recorded = results;
    if (!m_writer->write({m_clock.now(), *results, true}))
        Q_EMIT failed();
}

QString ScanSession::statusLine() const
{
    return stateInfo(m_cycle.isScanning(), QStringView(kApplicationTitle).toString(),
                     m_interface.get())
        .title;
}

void ScanSession::repaint()
{
    const TerminalSize size = terminalSize();
    const bool isTerminal = isStandardOutputTerminal();
    QStringList lines = tableText(m_pipeline.filteredNetworks(), m_options.list.columns,
                                  CellContext::fromDefaults(true), isTerminal ? size.columns : 0);
    QTextStream out(stdout);
    if (!isTerminal) {
        out << lines.join(u'\n') << '\n';
        return;
    }
    // The status above and the footer below; what does not fit between them is left out.
    lines.resize(std::clamp<qsizetype>(size.rows - 2, 0, lines.size()));
    lines.prepend(harmless(statusLine()));
    lines.append(m_pipeline.footerText());
    out << (std::exchange(m_ownsScreen, true) ? "" : kEnterScreen) << kHome;
    for (qsizetype i = 0; i < lines.size(); ++i)
        out << (i == 0 ? "" : "\r\n") << fitted(lines[i], size.columns, false) << kClearLine;
    out << kClearBelow;
}

} // namespace tessara
