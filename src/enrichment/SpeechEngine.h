#pragma once

#include <QObject>
#include <QTextToSpeech>

#include <memory>

namespace tessara {

/// The speech engine of the machine. It takes its time to start and to answer, so it lives on a
/// thread of its own, where all of this is called. It is looked for when there is first something
/// to say; where there is none, that is logged once and nothing is said.
class SpeechEngine final : public QObject {
    Q_OBJECT

public:
    /// Says a text, in place of what is being said.
    /// @param request is told along with what comes of it
    void say(const QString& text, int request);
    void stop(int request);

Q_SIGNALS:
    /// @param request the latest of those that it knows of
    void speakingDidChange(bool isSpeaking, int request);

private:
    void startEngine();

    std::unique_ptr<QTextToSpeech> m_engine; ///< none before the first text, or at all
    bool m_hasLookedForEngine = false;
    int m_request = 0;
};

} // namespace tessara
