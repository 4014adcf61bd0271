#include "shell/FilePanel.h"

#include "foundation/Localized.h"

#include <QFileDialog>

namespace tessara {

namespace {

QFileDialog& makePanel(QWidget& window, const QString& title, PathReceiver receiver)
{
    auto* panel = new QFileDialog(&window, title);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setNameFilter(localized("Comma-separated values (*.csv *.CSV)"));
    QObject::connect(panel, &QFileDialog::fileSelected, &window, std::move(receiver));
    return *panel;
}

} // namespace

void showExportPanel(QWidget& window, const QString& suggestedName, PathReceiver receiver)
{
    QFileDialog& panel = makePanel(window, localized("Export"), std::move(receiver));
    panel.setAcceptMode(QFileDialog::AcceptSave);
    // A desktop's own panel asks about the name as it was typed, before the ending is added.
    panel.setOption(QFileDialog::DontUseNativeDialog);
    panel.setNameFilters(panel.nameFilters() << localized("All files (*)"));
    panel.setDefaultSuffix(QStringLiteral("csv"));
    panel.setLabelText(QFileDialog::FileName, localized("Export As") + u':');
    panel.setLabelText(QFileDialog::Accept, localized("Export"));
    panel.selectFile(suggestedName);
    panel.open();
}

void showImportPanel(QWidget& window, PathReceiver receiver)
{
    QFileDialog& panel = makePanel(window, localized("Import"), std::move(receiver));
    panel.setFileMode(QFileDialog::ExistingFile);
    panel.setLabelText(QFileDialog::Accept, localized("Import"));
    panel.open();
}

} // namespace tessara
