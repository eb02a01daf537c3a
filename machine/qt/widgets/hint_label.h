#pragma once

#include <QLabel>

class QPainter;

namespace machine::qt {

/// A hint of several points, "* …" or "1. …". The lines of a point are indented like its first one, and the
/// points stand apart where there is room.
class HintLabel : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    /// Lays the text out with so much room between the points, draws it if there is a painter, and returns
    /// its height.
    double lay_out(double width, double gap, QPainter* painter) const;
};

}  // namespace machine::qt
