#include "enrichment/TextToSpeechVoice.h"

#include "foundation/Logging.h"

#include <utility>

namespace tessara {

void TextToSpeechVoice::startSpeakingString(const QString& text)
{
    if (!std::exchange(m_hasLookedForEngine, true))
        startEngine();
    if (!m_engine)
        return;
    setSpeaking(true);
    m_engine->say(text);
}

void TextToSpeechVoice::stopSpeaking()
{
    if (!m_engine)
        return;
    m_engine->stop();
    setSpeaking(false);
}

void TextToSpeechVoice::startEngine()
{
    QStringList names = QTextToSpeech::availableEngines();
    if (!names.isEmpty())
        names.prepend(QString()); // the one that Qt prefers
    for (const QString& name : names) {
        auto engine = std::make_unique<QTextToSpeech>(name);
        if (engine->state() == QTextToSpeech::Error)
            continue;
        connect(engine.get(), &QTextToSpeech::stateChanged, this,
                &TextToSpeechVoice::engineStateDidChange);
        m_engine = std::move(engine);
        return;
    }
    qCInfo(lcEnrichment, "There is no speech engine: nothing is said.");
}

void TextToSpeechVoice::engineStateDidChange(QTextToSpeech::State state)
{
    setSpeaking(state == QTextToSpeech::Speaking);
}

void TextToSpeechVoice::setSpeaking(bool speaking)
{
    if (std::exchange(m_isSpeaking, speaking) != speaking)
        Q_EMIT speakingDidChange();
}

} // namespace tessara
