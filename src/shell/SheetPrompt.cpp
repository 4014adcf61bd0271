#include "shell/SheetPrompt.h"

#include "foundation/Localized.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QProgressDialog>
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
    box->setInformativeText(QStringLiteral("<p>%1</p>%2")
                                .arg(alert.informativeText.toHtmlEscaped(), alert.accessoryHtml));
    addButtons(*box, alert.buttons);
    return box;
}

UserPrompt::AlertId SheetPrompt::open(QMessageBox* box, Answer answer)
{
    const AlertId id = ++m_lastAlert;
    m_sheets.emplace(id, box);
    connect(box, &QMessageBox::finished, this, [this, id, box, answer = std::move(answer)] {
        m_sheets.erase(id);
        answer(TSAlert::kFirstButton + box->clickedButton()->property(kPlace).toInt());
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

UserPrompt::ProgressId SheetPrompt::beginProgress(const QString& message)
{
    // Without an end that is known, and without a way to cancel it.
    auto* progress = new QProgressDialog(message, QString(), 0, 0, &m_window);
    progress->setAttribute(Qt::WA_DeleteOnClose);
    progress->setWindowModality(Qt::WindowModal);
    progress->setMinimumDuration(0);
    progress->show();
    const ProgressId id = ++m_lastAlert;
    m_sheets.emplace(id, progress);
    return id;
}

void SheetPrompt::endAlert(AlertId alert)
{
    const auto sheet = m_sheets.find(alert);
    if (sheet == m_sheets.end())
        return;
    QDialog* dialog = sheet->second;
    m_sheets.erase(sheet);
    dialog->disconnect(this);
    dialog->close();
}

} // namespace tessara
