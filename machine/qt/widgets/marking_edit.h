#pragma once

#include <QLineEdit>

namespace machine::qt {

/// A field of one line that underlines the characters that the carrier cannot send.
class MarkingEdit : public QLineEdit {
    Q_OBJECT

  public:
    using QLineEdit::QLineEdit;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace machine::qt
