#pragma once

#include <QLineEdit>

namespace machine::qt {

/// A field for a path. One that is too long for it is cut in the middle while nobody edits it, so that the
/// file's name shows, and its tool tip tells the whole of it.
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
