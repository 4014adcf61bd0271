#pragma once

#include <QMenu>

class QActionGroup;

namespace tessara {

/// Speaks the selected network's signal, or ends that, and holds the settings of it.
class SpeechMenu final : public QMenu {
    Q_OBJECT

public:
    explicit SpeechMenu(QWidget* parent = nullptr);

    /// Offers to end what is being said, or else to say something.
    void setSpeaking(bool speaking);

Q_SIGNALS:
    /// The item that speaks or stops was chosen.
    void speakTriggered();

private:
    void makeRepeatMenu();
    void validateItems();

    QAction* m_speakMenuItem;
    QAction* m_speakOn;
    QAction* m_speakWhenOnBackground;
    QActionGroup* m_intervals; ///< the data of an item are its seconds
    bool m_isSpeaking = false;
};

} // namespace tessara
