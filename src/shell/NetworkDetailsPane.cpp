#include "shell/NetworkDetailsPane.h"

#include "charts/TSNetworkDetailsView.h"
#include "foundation/Localized.h"
#include "shell/NetworkDetailsForm.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

namespace tessara {

namespace {

/// What the chart can show, in the order of the setting.
constexpr EnglishText kMetricTitles[] = {"Signal"_en, "Signal and Noise"_en,
                                         "Signal-to-Noise Ratio"_en};

} // namespace

NetworkDetailsPane::NetworkDetailsPane(const Clock& clock, QWidget* parent)
    : QWidget(parent)
    , m_metricPopUp(new QComboBox)
    , m_metricItems(new QActionGroup(this))
    , m_chart(new TSNetworkDetailsView(clock))
    , m_form(new NetworkDetailsForm)
{
    auto* caption = new QLabel(localized("Show:"));
    caption->setBuddy(m_metricPopUp);
    m_metricPopUp->setObjectName(QStringLiteral("Metric"));
    m_metricPopUp->setToolTip(localized("What the chart shows of the selected network"));
    auto* selector = new QHBoxLayout;
    const int margin = style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing);
    selector->setSpacing(margin);
    selector->setContentsMargins(margin, margin / 2, margin, margin / 2);
    selector->addWidget(caption);
    selector->addWidget(m_metricPopUp);
    selector->addStretch();
    auto* graph = new QVBoxLayout;
    graph->setSpacing(0);
    graph->addLayout(selector);
    graph->addWidget(m_chart, 1);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_form);
    layout->addLayout(graph, 1);

    for (const EnglishText title : kMetricTitles) {
        const int index = m_metricPopUp->count();
        m_metricPopUp->addItem(localized(title));
        QAction* item = m_metricItems->addAction(localized(title));
        item->setCheckable(true);
        connect(item, &QAction::triggered, this, [this, index] { userDidSelectMetric(index); });
    }
    connect(m_metricPopUp, &QComboBox::activated, this, &NetworkDetailsPane::userDidSelectMetric);
    userDidSelectMetric(0);
}

int NetworkDetailsPane::selectedMetric() const
{
    return static_cast<int>(m_chart->detailsMetric());
}

void NetworkDetailsPane::userDidSelectMetric(int index)
{
    const int known = index < 0 || index >= m_metricPopUp->count() ? 0 : index;
    m_metricPopUp->setCurrentIndex(known);
    m_metricItems->actions().at(known)->setChecked(true);
    m_chart->setMetric(static_cast<DetailsMetric>(known));
}

} // namespace tessara
