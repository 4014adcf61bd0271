#pragma once

#include <QObject>
#include <QString>

namespace tessara {

/// Says one thing at a time.
class Voice : public QObject {
    Q_OBJECT

public:
    virtual bool isSpeaking() const = 0;
    /// Says a text, in place of what is being said. Returns at once.
    virtual void startSpeakingString(const QString& text) = 0;
    virtual void stopSpeaking() = 0;

Q_SIGNALS:
    /// It has begun or ended to speak.
    void speakingDidChange();
};

} // namespace tessara
