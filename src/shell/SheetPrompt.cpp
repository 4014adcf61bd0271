#include "shell/SheetPrompt.h"

#include "foundation/Localized.h"
#include "shell/LegibleColor.h"
#include "shell/TSProgressWindow.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace tessara {

namespace {

QMessageBox::Icon iconFor(TSAlert::Style style)
{
    switch (style) {
    case TSAlert::Style::kInformational:
        return QMessageBox::Information;
    case TSAlert::Style::kCritical:
        return QMessageBox::Critical;
    case TSAlert::Style::kWarning:
        break;
    }
    return QMessageBox::Warning;
}

constexpr const char* kPlace = "place"; ///< of a button among those of its alert

/// Adds the buttons, each with its place; the desktop may show them in its own order.
void addButtons(QMessageBox& box, const QStringList& titles)
{
    for (int place = 0; place < titles.size(); ++place) {
        // The Escape key answers with the button of the reject role.
        const auto role = titles[place] == localized("Cancel") ? QMessageBox::RejectRole
                          : place == 0                         ? QMessageBox::AcceptRole
                                                               : QMessageBox::DestructiveRole;
        QPushButton* button = box.addButton(titles[place], role);
        button->setProperty(kPlace, place);
        if (place == 0)
            box.setDefaultButton(button);
        if (role == QMessageBox::RejectRole || titles.size() == 1)
            box.setEscapeButton(button); // also what closing the alert stands for
    }
}

} // namespace

SheetPrompt::SheetPrompt(QWidget& window)
    : m_window(window)
{
}

QMessageBox* SheetPrompt::makeSheet(const TSAlert& alert)
{
    auto* box = new QMessageBox(iconFor(alert.style), m_window.windowTitle(), alert.messageText,
                                QMessageBox::NoButton, &m_window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    const QString text = QStringLiteral("<p>%1</p>%2")
                             .arg(alert.informativeText.toHtmlEscaped(), alert.accessoryHtml);
    box->setInformativeText(withLegibleLinks(text, box->palette()));
    addButtons(*box, alert.buttons);
    return box;
}

UserPrompt::AlertId SheetPrompt::open(QMessageBox* box, Answer answer)
{
    const AlertId id = ++m_lastAlert;
    m_sheets.emplace(id, box);
    connect(box, &QMessageBox::finished, this, [this, id, box, answer = std::move(answer)] {
        m_sheets.erase(id);
        // Closed by its title bar, an alert has no clicked button yet.
        const QAbstractButton* clicked = box->clickedButton();
        const QAbstractButton* button = clicked ? clicked : box->escapeButton();
        answer(TSAlert::kFirstButton + (button ? button->property(kPlace).toInt() : 0));
    });
    box->open();
    return id;
}

UserPrompt::AlertId SheetPrompt::beginAlert(const TSAlert& alert, Answer answer)
{
    return open(makeSheet(alert), std::move(answer));
}

UserPrompt::AlertId SheetPrompt::beginSuppressibleAlert(const TSAlert& alert,
                                                        SuppressibleAnswer answer)
{
    QMessageBox* box = makeSheet(alert);
    auto* suppression = new QCheckBox(localized("Do not show this message again"));
    box->setCheckBox(suppression);
    return open(box, [suppression, answer = std::move(answer)](int returnCode) {
        answer(returnCode, suppression->isChecked());
    });
}

UserPrompt::ProgressId SheetPrompt::show(TSProgressWindow* progress)
{
    progress->setAttribute(Qt::WA_DeleteOnClose);
    progress->show();
    const ProgressId id = ++m_lastAlert;
    m_sheets.emplace(id, progress);
    return id;
}

UserPrompt::ProgressId SheetPrompt::beginProgress(const QString& message)
{
    return show(new TSProgressWindow(message, m_window));
}

UserPrompt::ProgressId SheetPrompt::beginCancellableProgress(const QString& message,
                                                             const std::function<void()>& cancel)
{
    auto* progress = new TSProgressWindow(message, m_window);
    progress->setCancellable();
    connect(progress, &TSProgressWindow::didCancel, this, cancel);
    return show(progress);
}

void SheetPrompt::setProgress(ProgressId progress, double done)
{
    const auto sheet = m_sheets.find(progress);
    if (sheet != m_sheets.end())
        static_cast<TSProgressWindow*>(sheet->second)->setProgress(done);
}

QFileDialog* SheetPrompt::makePanel(const FileKind& kind)
{
    auto* panel = new QFileDialog(&m_window);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setNameFilter(QStringLiteral("%1 (*.%2)").arg(kind.name, kind.extension));
    return panel;
}

void SheetPrompt::beginOpenPanel(const FileKind& kind, const FileAnswer& answer)
{
    QFileDialog* panel = makePanel(kind);
    panel->setFileMode(QFileDialog::ExistingFile);
    connect(panel, &QFileDialog::fileSelected, this, answer);
    panel->open();
}

void SheetPrompt::beginSavePanel(const FileKind& kind, const FileAnswer& answer)
{
    openSavePanel(kind, QString(), answer);
}

/// @param path what the panel begins with
void SheetPrompt::openSavePanel(const FileKind& kind, const QString& path, const FileAnswer& answer)
{
    QFileDialog* panel = makePanel(kind);
    panel->setAcceptMode(QFileDialog::AcceptSave);
    // A desktop's own panel asks about the name as it was typed, before the ending is added.
    panel->setOption(QFileDialog::DontUseNativeDialog);
    panel->setDefaultSuffix(kind.extension);
    if (!path.isEmpty())
        panel->selectFile(path);
    connect(panel, &QFileDialog::fileSelected, this, [this, kind, answer](const QString& chosen) {
        const QString ending = u'.' + kind.extension;
        if (chosen.endsWith(ending))
            answer(chosen);
        else // a file of that name and the ending may be there: the panel asks about it
            openSavePanel(kind, chosen + ending, answer);
    });
    panel->open();
}

void SheetPrompt::endAlert(AlertId alert)
{
    const auto sheet = m_sheets.find(alert);
    if (sheet == m_sheets.end())
        return;
    QDialog* dialog = sheet->second;
    m_sheets.erase(sheet);
    dialog->disconnect(this);
    dialog->done(QDialog::Rejected); // not close: a sheet can refuse that
}

} // namespace tessara
