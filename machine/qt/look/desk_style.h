#pragma once

#include <QProxyStyle>

namespace machine::qt {

/// The look of the program's windows: Qt's Fusion style, drawn flat, with one accent. The button that Enter
/// presses is filled with it, the focus is a line of it. The mouse wheel changes no choice.
///
/// A label whose property `look` says so is written as "heading", "strong", "link", "muted", "failure" or
/// "warning", and everything in a widget of the look "large" is written larger.
class DeskStyle : public QProxyStyle {
    Q_OBJECT

  public:
    DeskStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    bool eventFilter(QObject* object, QEvent* event) override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace machine::qt
