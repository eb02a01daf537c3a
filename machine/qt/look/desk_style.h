#pragma once

#include <QProxyStyle>

namespace machine::qt {

/// The look of the program's windows: Qt's Fusion style with taller rows in lists, check boxes that are
/// visible on dark windows too, and choices that the mouse wheel does not change.
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
