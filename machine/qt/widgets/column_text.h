#pragma once

#include "machine/qt/widgets/multiline_edit.h"

class QSyntaxHighlighter;

namespace machine::qt {

/// Lines of a label, a colon and a value, at a height that shows them all. The labels are padded for a font
/// whose blank is a third of a syllable: here it is one in every font, so that the colons stand in a column.
class ColumnText : public MultilineEdit {
    Q_OBJECT

  public:
    explicit ColumnText(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void changeEvent(QEvent* event) override;

  private:
    QSyntaxHighlighter& blanks_;
};

}  // namespace machine::qt
