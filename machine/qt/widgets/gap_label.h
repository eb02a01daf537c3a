#pragma once

#include <QLabel>
#include <utility>

namespace machine::qt {

/// A label with a widget within its text: a run of blanks in the text marks the place of the widget.
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
    /// The text before the gap and after it.
    std::pair<QString, QString> parts() const;
    void make_room();
};

}  // namespace machine::qt
