#pragma once

#include <QProxyStyle>

class QStyleOptionComboBox;
class QStyleOptionMenuItem;
class QStyleOptionSlider;
class QStyleOptionSpinBox;

namespace workbench {

/// Qt's own widgets drawn as calmly as the toolkit's: flat grounds, hairline frames, the accent for focus and choice.
/// All colours come from the palette, so that a theme is a palette.
class FlatStyle : public QProxyStyle
{
    Q_OBJECT
public:
    FlatStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;

private:
    void drawSpinBox(const QStyleOptionSpinBox& option, QPainter& painter, const QWidget* widget) const;
    void drawMenuBarItem(const QStyleOptionMenuItem& item, QPainter& painter) const;
    void drawScrollBar(const QStyleOptionSlider& option, QPainter& painter, const QWidget* widget) const;
    void drawComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget) const;
};

} // namespace workbench
