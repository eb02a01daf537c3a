#pragma once

#include <QProxyStyle>

namespace platform::qt {

/// The look of the program's windows: the toolkit's own style, with rows of lists that are easy to hit and
/// boxes to tick that are seen on dark windows too.
class DeskStyle : public QProxyStyle {
    Q_OBJECT

  public:
    DeskStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

}  // namespace platform::qt
