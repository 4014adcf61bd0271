#include "shell/SheetPrompt.h"

#include "foundation/Localized.h"

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

/// The buttons, in the order of their return codes; the desktop may show them in its own order.
QList<QAbstractButton*> addButtons(QMessageBox& box, const QStringList& titles)
{
    QList<QAbstractButton*> buttons;
    for (const QString& title : titles) {
        // The Escape key answers with the button of the reject role.
        const auto role = title == localized("Cancel") ? QMessageBox::RejectRole
                          : buttons.isEmpty()          ? QMessageBox::AcceptRole
                                                       : QMessageBox::DestructiveRole;
        buttons.append(box.addButton(title, role));
    }
    if (!buttons.isEmpty())
        box.setDefaultButton(qobject_cast<QPushButton*>(buttons.first()));
    return buttons;
}

} // namespace

SheetPrompt::SheetPrompt(QWidget& window)
    : m_window(window)
{
}

UserPrompt::AlertId SheetPrompt::beginAlert(const TSAlert& alert, Answer answer)
{
    auto* box = new QMessageBox(iconFor(alert.style), m_window.windowTitle(), alert.messageText,
                                QMessageBox::NoButton, &m_window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(QStringLiteral("<p>%1</p>%2")
                                .arg(alert.informativeText.toHtmlEscaped(), alert.accessoryHtml));
    const QList<QAbstractButton*> buttons = addButtons(*box, alert.buttons);

    const AlertId id = ++m_lastAlert;
    m_sheets.emplace(id, box);
    connect(box, &QMessageBox::finished, this, [this, id, box, buttons, answer] {
        m_sheets.erase(id);
        answer(TSAlert::kFirstButton + static_cast<int>(buttons.indexOf(box->clickedButton())));
    });
    box->open();
    return id;
}

void SheetPrompt::endAlert(AlertId alert)
{
    const auto sheet = m_sheets.find(alert);
    if (sheet == m_sheets.end())
        return;
    QMessageBox* box = sheet->second;
    m_sheets.erase(sheet);
    box->disconnect(this);
    box->close();
}

} // namespace tessara
