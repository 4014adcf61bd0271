#include "enrichment/SpeechEngine.h"

#include "foundation/Logging.h"

#include <utility>

namespace tessara {

void SpeechEngine::say(const QString& text, int request)
{
    m_request = request;
    if (!std::exchange(m_hasLookedForEngine, true))
        startEngine();
    if (m_engine)
        m_engine->say(text);
    // A service that has gone tells of no change.
    if (!m_engine || m_engine->state() == QTextToSpeech::Error)
        Q_EMIT speakingDidChange(false, request);
}

void SpeechEngine::stop(int request)
{
    m_request = request;
    if (m_engine)
        m_engine->stop();
}

void SpeechEngine::startEngine()
{
    QStringList names = QTextToSpeech::availableEngines();
    if (!names.isEmpty())
        names.prepend(QString()); // the one that Qt prefers
    for (const QString& name : names) {
        auto engine = std::make_unique<QTextToSpeech>(name);
        if (engine->state() == QTextToSpeech::Error)
            continue;
        connect(engine.get(), &QTextToSpeech::stateChanged, this,
                [this](QTextToSpeech::State state) {
                    Q_EMIT speakingDidChange(state == QTextToSpeech::Speaking, m_request);
                });
        m_engine = std::move(engine);
        return;
    }
    qCInfo(lcEnrichment, "There is no speech engine: nothing is said.");
}

} // namespace tessara
