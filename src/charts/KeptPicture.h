#pragma once

#include "charts/PaintRecording.h"

#include <QFutureWatcher>
#include <QImage>
#include <QObject>
#include <QPixmap>

#include <functional>

namespace tessara {

/// A picture that is painted once for each change and kept. What takes long to paint is painted in
/// another thread: until it is there, the former picture stays in sight.
class KeptPicture final : public QObject {
    Q_OBJECT

public:
    /// What a picture was painted for.
    struct Key {
        QSize size;        ///< in points
        double pixelRatio; ///< pixels of a point
        QSize window;      ///< in points; texts and margins grow with it
        bool isNow;        ///< the axis of time ends with "Now"

        bool operator==(const Key&) const = default;
    };

    using Paint = std::function<void(QPainter&)>;

    KeptPicture();
    ~KeptPicture() override;

    /// Something has changed that is painted.
    void invalidate() { m_isStale = true; }

    /// Nobody has seen the picture for a while: when one is drawn again, it is a new one.
    void forget();

    /// Draws the picture at the origin.
    /// @param paint paints a new one, if that is needed; called on this thread before this returns
    void draw(QPainter& painter, const Key& key, const Paint& paint);

Q_SIGNALS:
    /// A picture that is newer than the one that was drawn is there.
    void didPaint();

private:
    void repaint(const Key& key, const Paint& paint, int dotsPerInch);

    QPixmap m_picture;
    Key m_key{};
    bool m_isStale = true;
    bool m_isPainting = false;  ///< in the other thread
    bool m_isForgotten = false; ///< what is painted there
    QFutureWatcher<QImage> m_painting;
};

} // namespace tessara
