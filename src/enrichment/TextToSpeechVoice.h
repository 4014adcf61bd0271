#pragma once

#include "enrichment/Voice.h"

#include <QThread>

#include <memory>

namespace tessara {

class SpeechEngine;

/// The voice of the machine's speech engine, which is started with the first text. Where there is
/// none it speaks to no avail.
class TextToSpeechVoice final : public Voice {
    Q_OBJECT

public:
    TextToSpeechVoice() = default;
    ~TextToSpeechVoice() override;

    bool isSpeaking() const override { return m_isSpeaking; }
    void startSpeakingString(const QString& text) override;
    void stopSpeaking() override;

private:
    void startThread();
    void engineDidChange(bool isSpeaking, int request);
    void setSpeaking(bool speaking);

    std::unique_ptr<QThread> m_thread; ///< the engine's; none before the first text
    SpeechEngine* m_engine = nullptr;  ///< goes with its thread
    int m_request = 0;                 ///< what the engine has been asked for last
    bool m_isSpeaking = false;         ///< from the request on, which the engine lags behind
};

} // namespace tessara
