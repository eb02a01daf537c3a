#pragma once

#include <QProxyStyle>

namespace machine::qt {

/// The look of the program's windows: the toolkit's own style, with rows of lists that are easy to hit,
/// boxes to tick that are seen on dark windows too and choices that the wheel of the mouse passes over.
class DeskStyle : public QProxyStyle {
    Q_OBJECT

  public:
    DeskStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace machine::qt
