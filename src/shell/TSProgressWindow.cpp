#include "shell/TSProgressWindow.h"

#include "foundation/Localized.h"
#include "shell/ElidedLabel.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessara {

namespace {

constexpr int kSteps = 1000;
constexpr int kWidth = 420;

} // namespace

TSProgressWindow::TSProgressWindow(const QString& message, QWidget& window)
    : QDialog(&window)
    , m_bar(new QProgressBar)
    , m_cancel(new QPushButton(localized("Cancel")))
{
    setWindowModality(Qt::WindowModal);
    setMinimumWidth(kWidth);
    auto* label = new ElidedLabel; // a path can be long
    label->setText(message, message);
    m_bar->setRange(0, 0); // an end that is not known
    m_bar->setTextVisible(false);
    m_cancel->hide();
    connect(m_cancel, &QPushButton::clicked, this, &TSProgressWindow::reject);

    auto* line = new QHBoxLayout;
    line->addWidget(m_bar);
    line->addWidget(m_cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addLayout(line);
}

void TSProgressWindow::setCancellable()
{
    m_bar->setRange(0, kSteps);
    m_bar->setValue(0);
    m_cancel->show();
}

void TSProgressWindow::setProgress(double done)
{
    m_bar->setValue(static_cast<int>(done * kSteps));
}

void TSProgressWindow::reject()
{
    if (m_cancel->isHidden() || !m_cancel->isEnabled())
        return;
    m_cancel->setEnabled(false);
    Q_EMIT didCancel();
}

} // namespace tessara
