#pragma once

#include <QProgressBar>

namespace machine::qt {

/// A thin bar that fills with a message, in another colour when it is nearly full.
class ByteBar : public QProgressBar {
    Q_OBJECT

  public:
    explicit ByteBar(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace machine::qt
