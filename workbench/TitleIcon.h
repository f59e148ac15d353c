#pragma once

#include <QIconEngine>

namespace workbench {

/// The signs in the title of a part: a cross that closes it, a frame that takes it out of the window. Drawn, as Qt's
/// own pictures have one size and one colour.
class TitleIcon : public QIconEngine
{
public:
    enum class Sign { Cross, Frame };
    explicit TitleIcon(Sign sign);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;

private:
    Sign m_sign;
};

} // namespace workbench
