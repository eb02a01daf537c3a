#pragma once

#include <QLabel>
#include <utility>

namespace machine::qt {

/// A label whose text goes around the widget that it holds: a run of blanks in the text stands for the
/// widget.
class GapLabel : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    /// What stands before the gap and what behind it.
    std::pair<QString, QString> parts() const;
    void make_room();
};

}  // namespace machine::qt
