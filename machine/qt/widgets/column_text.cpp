#include "machine/qt/widgets/column_text.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <QtMath>

namespace machine::qt {

namespace {

/// By how much a blank of a label is wider than the font's.
double widening(const QFontMetricsF& metrics) {
    return metrics.horizontalAdvance(QStringLiteral("가")) / 3 - metrics.horizontalAdvance(u' ');
}

/// Spaces the blanks of the labels. Word spacing would widen a run of blanks once, not each of them.
class LabelBlanks : public QSyntaxHighlighter {
  public:
    explicit LabelBlanks(ColumnText& text) : QSyntaxHighlighter(text.document()), text_(text) {}

  protected:
    void highlightBlock(const QString& line) override {
        QTextCharFormat blank;
        blank.setFontLetterSpacingType(QFont::AbsoluteSpacing);
        blank.setFontLetterSpacing(widening(QFontMetricsF(text_.font())));
        for (int at = 0; at < line.indexOf(u':'); ++at)
            if (line[at] == u' ') setFormat(at, 1, blank);
    }

  private:
    ColumnText& text_;
};

}  // namespace

ColumnText::ColumnText(QWidget* parent) : MultilineEdit(parent), blanks_(*new LabelBlanks(*this)) {}

void ColumnText::changeEvent(QEvent* event) {
    MultilineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) blanks_.rehighlight();
}

QSize ColumnText::sizeHint() const {
    constexpr int MOST_SYLLABLES = 36;
    const QFontMetricsF metrics(font());
    const double limit = MOST_SYLLABLES * metrics.horizontalAdvance(QStringLiteral("가"));
    double widest = 0;
    int lines = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const QString line = block.text();
        const auto blanks = line.left(qMax<qsizetype>(line.indexOf(u':'), 0)).count(u' ');
        const double width = metrics.horizontalAdvance(line) + double(blanks) * widening(metrics);
        widest = qMax(widest, width);
        lines += 1 + static_cast<int>(width / limit);
    }
    const double edge = 2 * (document()->documentMargin() + frameWidth()) + 1;
    return {qCeil(qMin(widest, limit) + edge), lines * qCeil(metrics.lineSpacing() + 1) + qCeil(edge)};
}

}  // namespace machine::qt
