#pragma once

#include "enrichment/Voice.h"

#include <string>
#include <utility>
#include <vector>

namespace tessara {

/// Remembers what it is to say, and speaks until the test ends that.
class RecordingVoice final : public Voice {
public:
    bool isSpeaking() const override { return m_isSpeaking; }
    void startSpeakingString(const QString& text) override
    {
        said.push_back(text.toStdString());
        setSpeaking(true);
    }
    void stopSpeaking() override { setSpeaking(false); }

    void finish() { setSpeaking(false); }

    std::vector<std::string> said;

private:
    void setSpeaking(bool speaking)
    {
        if (std::exchange(m_isSpeaking, speaking) != speaking)
            Q_EMIT speakingDidChange();
    }

    bool m_isSpeaking = false;
};

} // namespace tessara
