#include "cli/ScanSession.h"

#include "cli/TableText.h"
#include "cli/Terminal.h"
#include "scanning/StateInfo.h"

#include <QTextStream>

namespace tessara {

ScanSession::ScanSession(ScanRuntime& runtime, std::shared_ptr<CWInterface> interface,
                         Options options)
    : m_options(std::move(options))
    , m_interface(std::move(interface))
    , m_clock(runtime.clock())
    , m_cycle(m_interface, runtime.engineServices(), *this, m_prompt)
{
    m_pipeline.setSortDescriptors(m_options.list.sort);
    if (m_options.saveTo) {
        m_writer = std::make_unique<RecordingWriter>(*m_options.saveTo);
        connect(&runtime.notifications(), &NotificationCenter::scanDidEnd, this,
                &ScanSession::record, Qt::QueuedConnection);
    }
}

QString ScanSession::finish()
{
    const double lastScanTime = m_cycle.lastScanTime();
    m_cycle.doStop();
    if (m_writer) {
        m_writer->finish();
        return m_writer->error();
    }
    if (m_options.watch && m_paintedLines > 0 && isStandardOutputTerminal())
        QTextStream(stdout) << QStringLiteral("\x1b[%1A\x1b[J").arg(m_paintedLines);
    printList(m_pipeline, m_options.list, cellContext(false), lastScanTime);
    return {};
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
    const bool terminal = isStandardOutputTerminal();
    const TerminalSize size = terminalSize();
    QStringList lines = tableText(m_pipeline.filteredNetworks(), m_options.list.columns,
                                  cellContext(true), terminal ? size.columns : 0);
    QTextStream out(stdout);
    if (terminal) {
        // One line each for the status, the footer and the cursor.
        const qsizetype room = std::max(size.rows - 3, 1);
        if (lines.size() > room)
            lines.resize(room);
        // In place: up to where the last table began, and clear from there.
        if (m_paintedLines > 0)
            out << QStringLiteral("\x1b[%1A\x1b[J").arg(m_paintedLines);
        lines.prepend(fitted(harmless(statusLine()), size.columns, false));
        lines.append(fitted(m_pipeline.footerText(), size.columns, false));
    }
    for (const QString& line : lines)
        out << line << '\n';
    m_paintedLines = static_cast<int>(lines.size());
}

} // namespace tessara
