#pragma once

#include <QLineEdit>

namespace machine::qt {

/// A field for a path. While it has no focus, a path that is too long is cut in the middle, so that the
/// file's name can be read; the tool tip shows it whole.
class PathEdit : public QLineEdit {
    Q_OBJECT

  public:
    using QLineEdit::QLineEdit;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QRect text_place() const;
    bool is_cut() const;
};

}  // namespace machine::qt
