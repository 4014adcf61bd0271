#include "enrichment/TextToSpeechVoice.h"

#include "enrichment/SpeechEngine.h"

#include <chrono>
#include <utility>

namespace tessara {

TextToSpeechVoice::~TextToSpeechVoice()
{
    if (!m_thread)
        return;
    m_thread->quit();
    constexpr std::chrono::seconds kPatience{3};
    if (!m_thread->wait(std::chrono::milliseconds(kPatience).count()))
        static_cast<void>(m_thread.release()); // an engine that hangs must not keep the program
}

void TextToSpeechVoice::startSpeakingString(const QString& text)
{
    if (!m_thread)
        startThread();
    setSpeaking(true);
    QMetaObject::invokeMethod(
        m_engine, [engine = m_engine, text, request = ++m_request] { engine->say(text, request); });
}

void TextToSpeechVoice::stopSpeaking()
{
    if (!m_thread)
        return;
    QMetaObject::invokeMethod(
        m_engine, [engine = m_engine, request = ++m_request] { engine->stop(request); });
    setSpeaking(false);
}

void TextToSpeechVoice::startThread()
{
    m_thread = std::make_unique<QThread>();
    m_engine = new SpeechEngine;
    m_engine->moveToThread(m_thread.get());
    connect(m_thread.get(), &QThread::finished, m_engine, &QObject::deleteLater);
    connect(m_engine, &SpeechEngine::speakingDidChange, this, &TextToSpeechVoice::engineDidChange);
    m_thread->start();
}

void TextToSpeechVoice::engineDidChange(bool isSpeaking, int request)
{
    if (request == m_request) // else it does not know yet what it is to say
        setSpeaking(isSpeaking);
}

void TextToSpeechVoice::setSpeaking(bool speaking)
{
    if (std::exchange(m_isSpeaking, speaking) != speaking)
        Q_EMIT speakingDidChange();
}

} // namespace tessara
