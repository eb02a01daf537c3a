#include "machine/qt/widgets/column_widths.h"

#include <QEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <algorithm>

namespace machine::qt {

namespace {

constexpr int WIDTH_TO_SHARE = 100;
constexpr int NARROWEST = 40;

}  // namespace

ColumnWidths::ColumnWidths(QHeaderView& header) : header_(header) {
    header.setSectionResizeMode(QHeaderView::Interactive);
    connect(&header, &QHeaderView::sectionResized, this, &ColumnWidths::note_drag);
    header.installEventFilter(this);
}

int ColumnWidths::text_size() const { return QFontInfo(header_.font()).pixelSize(); }

/// The columns grow and shrink with the desktop's font.
bool ColumnWidths::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::FontChange || text_size_ == 0) return false;
    const QScopedValueRollback<bool> filling(filling_, true);
    for (int column = 0; column < header_.count(); ++column) {
        if (!header_.isSectionHidden(column))
            header_.resizeSection(column, header_.sectionSize(column) * text_size() / text_size_);
    }
    text_size_ = text_size();
    return false;
}

void ColumnWidths::set(const QStringList& widths) {
    text_size_ = text_size();
    for (int column = 0; column < widths.size(); ++column) {
        const bool shares = widths[column].startsWith(u'*');
        const QString number = shares ? widths[column].mid(1) : widths[column];
        const int width = number.isEmpty() ? WIDTH_TO_SHARE : number.toInt();
        header_.setSectionHidden(column, width == 0);
        header_.resizeSection(column, width * text_size_ / 12);
        if (shares) sharing_.push_back(column);
    }
    if (!sharing_.empty()) header_.setStretchLastSection(false);
}

void ColumnWidths::fill(int room) {
    const QScopedValueRollback<bool> filling(filling_, true);
    share_out(room + beyond_ - header_.length());
    // Columns that were narrow already have left their part to the others.
    share_out(room + beyond_ - header_.length());
}

void ColumnWidths::share_out(int to_share) {
    const auto shares = [&](int column) { return to_share > 0 || header_.sectionSize(column) > NARROWEST; };
    int shared = 0;
    for (const int column : sharing_) shared += shares(column) ? header_.sectionSize(column) : 0;
    for (const int column : sharing_) {
        if (!shares(column)) continue;
        const int width = header_.sectionSize(column);
        const int share = shared == 0 ? 0 : to_share * width / shared;
        header_.resizeSection(column, std::max(width + share, std::min(width, NARROWEST)));
        shared -= width;
        to_share -= share;
    }
}

/// A column that the user has made wider or narrower stays so when the list's size changes.
void ColumnWidths::note_drag() {
    if (filling_ || !(QGuiApplication::mouseButtons() & Qt::LeftButton)) return;
    const auto* list = qobject_cast<const QAbstractScrollArea*>(header_.parent());
    if (list != nullptr) beyond_ = header_.length() - list->viewport()->width();
}

}  // namespace machine::qt
