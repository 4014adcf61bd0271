#pragma once

#include "enrichment/Voice.h"

#include <QTextToSpeech>

#include <memory>

namespace tessara {

/// The voice of the speech engine that the machine has. The engine is started when there is first
/// something to say; where there is none, that is logged once and nothing is said.
class TextToSpeechVoice final : public Voice {
    Q_OBJECT

public:
    bool isSpeaking() const override { return m_isSpeaking; }
    void startSpeakingString(const QString& text) override;
    void stopSpeaking() override;

private:
    void startEngine();
    void engineStateDidChange(QTextToSpeech::State state);
    void setSpeaking(bool speaking);

    std::unique_ptr<QTextToSpeech> m_engine; ///< none before the first text, or at all
    bool m_hasLookedForEngine = false;
    bool m_isSpeaking = false; ///< from the request on, which the engine lags behind
};

} // namespace tessara
