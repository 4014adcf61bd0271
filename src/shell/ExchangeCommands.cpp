#include "shell/ExchangeCommands.h"

#include "persistence/ClipboardText.h"
#include "shell/FilePanel.h"
#include "shell/MainMenu.h"
#include "shell/MainWindow.h"
#include "shell/TSNetworksView.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <iterator>

namespace tessara {

namespace {

bool isSelected(const NetworkPtr& network)
{
    return network->isUserHighlighted();
}

} // namespace

ExchangeCommands::ExchangeCommands(MainWindow& window, Sources sources, UserPrompt& prompt)
    : m_window(window)
    , m_sources(std::move(sources))
    , m_export(prompt)
    , m_annotationsCSV(m_sources.annotations, prompt)
{
    connect(&m_annotationsCSV, &AnnotationsCSV::didImport, this,
            &ExchangeCommands::annotationsDidImport);
}

// Networks --------------------------------------------------------------------------------------

void ExchangeCommands::onFileSummaryExportAllNetworks()
{
    exportNetworks(&ExchangeCommands::allNetworks);
}

void ExchangeCommands::onFileSummaryExportDisplayedNetworks()
{
    exportNetworks(&ExchangeCommands::displayedNetworks);
}

void ExchangeCommands::onFileSummaryExportSelectedNetworks()
{
    exportNetworks(&ExchangeCommands::selectedNetworks);
}

NetworkList ExchangeCommands::selectedNetworks() const
{
    NetworkList selected;
    std::ranges::copy_if(m_sources.scanCycle.networks(), std::back_inserter(selected), isSelected);
    return selected;
}

void ExchangeCommands::exportNetworks(NetworkList (ExchangeCommands::*networks)() const)
{
    showExportPanel(
        m_window, CSVExport::suggestedFileName(m_sources.clock.now()),
        [this, networks](const QString& path) {
            m_export.doExportWithFileInBackground(
                {path, (this->*networks)(), m_window.networksView().tableColumnIdentifiers()});
        });
}

void ExchangeCommands::validateMenuItems()
{
    const NetworkList& displayed = m_sources.pipeline.filteredNetworks();
    m_window.menu().setExportEnabled(!m_sources.scanCycle.networks().empty(), !displayed.empty(),
                                     std::ranges::any_of(displayed, isSelected));
}

// Annotations -----------------------------------------------------------------------------------

void ExchangeCommands::onFileAnnotationsExportCSV()
{
    showExportPanel(m_window, QString(), [this](const QString& path) {
        m_annotationsCSV.exportFile(path, annotationsOfFile());
    });
}

/// The notes of an opened file; with live results the store has them all.
TSAnnotationsHelper::Annotations ExchangeCommands::annotationsOfFile() const
{
    TSAnnotationsHelper::Annotations annotations;
    if (m_sources.hasUnsavedResults())
        return annotations;
    for (const NetworkPtr& network : m_sources.scanCycle.networks()) {
        if (network->hasAnnotations())
            annotations.insert(network->bssid(), network->annotations());
    }
    return annotations;
}

void ExchangeCommands::onFileAnnotationsImportCSV()
{
    showImportPanel(m_window, [this](const QString& path) { m_annotationsCSV.importFile(path); });
}

void ExchangeCommands::annotationsDidImport()
{
    for (const NetworkPtr& network : m_sources.scanCycle.networks())
        network->annotationsDidChange();
    Q_EMIT annotationsDidChange();
}

// The clipboard ---------------------------------------------------------------------------------

void ExchangeCommands::copy()
{
    const TSNetworksView& table = m_window.networksView();
    const std::vector<const NetworkRow*> rows = table.selectedItems();
    if (rows.empty())
        return;
    const QString text = textOfRows(rows, table.visibleColumns(), table.context());
    QGuiApplication::clipboard()->setMimeData(clipboardData(text).release());
}

} // namespace tessara
