#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace tessara {

/// A small wheel that turns while work is going on. At rest it is invisible and keeps its place.
class ActivityIndicator final : public QWidget {
    Q_OBJECT

public:
    explicit ActivityIndicator(QWidget* parent = nullptr);

    void start();
    void stop();
    bool isAnimating() const { return m_timer.isActive(); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer m_timer;
    int m_step = 0;
};

} // namespace tessara
