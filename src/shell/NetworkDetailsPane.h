#pragma once

#include <QWidget>

class QActionGroup;
class QComboBox;

namespace tessara {

class Clock;
class NetworkDetailsForm;
class TSNetworkDetailsView;

/// The tab of the selected network: the network in words, the chart of its history, and what
/// selects the chart's metric.
class NetworkDetailsPane final : public QWidget {
    Q_OBJECT

public:
    /// @param clock must outlive the pane
    explicit NetworkDetailsPane(const Clock& clock, QWidget* parent = nullptr);

    TSNetworkDetailsView& chart() { return *m_chart; }
    NetworkDetailsForm& form() { return *m_form; }
    /// The commands that select the metric, one of them checked.
    QActionGroup& metricItems() { return *m_metricItems; }

    /// The metric that is shown, counted as the setting `Metric` counts them.
    int selectedMetric() const;

public Q_SLOTS:
    /// Shows a metric; one that there is not is as good as the first.
    void userDidSelectMetric(int index);

private:
    QComboBox* m_metricPopUp;
    QActionGroup* m_metricItems;
    TSNetworkDetailsView* m_chart;
    NetworkDetailsForm* m_form;
};

} // namespace tessara
