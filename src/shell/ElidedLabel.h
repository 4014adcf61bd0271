#pragma once

#include <QWidget>

namespace tessara {

/// One line of plain text that shrinks with an ellipsis; its tool tip is the whole text while
/// some of it is cut, unless it has one of its own.
class ElidedLabel final : public QWidget {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void setText(const QString& text, const QString& ownToolTip = {});
    const QString& text() const { return m_text; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool isCut() const;
    void updateToolTip();

    QString m_text;
    QString m_ownToolTip;
};

} // namespace tessara
