#pragma once

#include <QProgressBar>

namespace machine::qt {

/// Shows a level from 0 to 100 as a row of lights: green, yellow for a loud voice, red where it distorts.
class LevelMeter : public QProgressBar {
    Q_OBJECT

  public:
    explicit LevelMeter(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace machine::qt
