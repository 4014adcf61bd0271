#include "enrichment/TextToSpeechVoice.h"

#include "foundation/Logging.h"

#include <utility>

namespace tessara {

void TextToSpeechVoice::startSpeakingString(const QString& text)
{
    if (!m_engine)
        startEngine();
    if (m_engine->state() == QTextToSpeech::Error)
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
    m_engine = std::make_unique<QTextToSpeech>(); // the one that Qt prefers
    QStringList others = QTextToSpeech::availableEngines();
    others.removeOne(m_engine->engine());
    while (m_engine->state() == QTextToSpeech::Error && !others.isEmpty())
        m_engine->setEngine(others.takeFirst());
    if (m_engine->state() == QTextToSpeech::Error)
        qCInfo(lcEnrichment, "No speech engine answers: nothing is said. (%s)",
               qUtf8Printable(m_engine->errorString()));
    connect(m_engine.get(), &QTextToSpeech::stateChanged, this,
            &TextToSpeechVoice::engineStateDidChange);
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
