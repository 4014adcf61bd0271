#pragma once

#include "filtering/DisplayPipeline.h"
#include "persistence/AnnotationsCSV.h"
#include "persistence/CSVExport.h"
#include "scanning/ScanCycle.h"

#include <QObject>

#include <functional>

namespace tessara {

class MainWindow;

/// The commands by which other programs get what the window shows, and the notes go in and out:
/// export, import and Copy.
class ExchangeCommands final : public QObject {
    Q_OBJECT

public:
    struct Sources {
        const ScanCycle& scanCycle;
        const DisplayPipeline& pipeline;
        TSAnnotationsHelper& annotations;
        Clock& clock;
        std::function<bool()> hasUnsavedResults; ///< live results, as against those of a file
    };

    /// All that is passed must outlive this.
    ExchangeCommands(MainWindow& window, Sources sources, UserPrompt& prompt);

    void onFileSummaryExportAllNetworks();
    void onFileSummaryExportDisplayedNetworks();
    void onFileSummaryExportSelectedNetworks();
    void onFileAnnotationsExportCSV();
    void onFileAnnotationsImportCSV();
    /// The selected rows, by the columns that are shown.
    void copy();
    /// Which of the export commands have something to export.
    void validateMenuItems();

Q_SIGNALS:
    void annotationsDidChange();

private:
    /// Asks for a file and writes what the function gives by then.
    void exportNetworks(NetworkList (ExchangeCommands::*networks)() const);
    NetworkList allNetworks() const { return m_sources.scanCycle.networks(); }
    NetworkList displayedNetworks() const { return m_sources.pipeline.filteredNetworks(); }
    NetworkList selectedNetworks() const;
    TSAnnotationsHelper::Annotations annotationsOfFile() const;
    void annotationsDidImport();

    MainWindow& m_window;
    const Sources m_sources;
    CSVExport m_export;
    AnnotationsCSV m_annotationsCSV;
};

} // namespace tessara
