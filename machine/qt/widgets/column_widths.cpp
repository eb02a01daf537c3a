#include "machine/qt/widgets/column_widths.h"

#include <QEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <algorithm>

namespace machine::qt {

namespace {

constexpr int WIDTH_TO_SHARE = 100;

}  // namespace

ColumnWidths::ColumnWidths(QHeaderView& header) : header_(header) {
    header.setSectionResizeMode(QHeaderView::Interactive);
    connect(&header, &QHeaderView::sectionResized, this, &ColumnWidths::note_drag);
    header.installEventFilter(this);
}

int ColumnWidths::text_size() const { return QFontInfo(header_.font()).pixelSize(); }

/// The header's own length counts hidden columns in.
int ColumnWidths::length() const {
    int length = 0;
    for (int column = 0; column < header_.count(); ++column) length += header_.sectionSize(column);
    return length;
}

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
        const QStringList numbers = widths[column].mid(shares ? 1 : 0).split(u'/');
        const int width = numbers.front().isEmpty() ? WIDTH_TO_SHARE : numbers.front().toInt();
        header_.setSectionHidden(column, width == 0);
        header_.resizeSection(column, width * text_size_ / 12);
        if (shares) sharing_.push_back({column, numbers.size() == 1 ? width : numbers.back().toInt()});
    }
    if (!sharing_.empty()) header_.setStretchLastSection(false);
}

void ColumnWidths::fill(int room) {
    const QScopedValueRollback<bool> filling(filling_, true);
    int to_share = room + beyond_ - length();
    int shared = 0;
    for (const Sharing& sharing : sharing_) shared += header_.sectionSize(sharing.column);
    for (const Sharing& sharing : sharing_) {
        const int width = header_.sectionSize(sharing.column);
        const int share = shared == 0 ? 0 : to_share * width / shared;
        const int filled = std::max(width + share, std::min(width, sharing.least * text_size_ / 12));
        header_.resizeSection(sharing.column, filled);
        shared -= width;
        to_share -= filled - width;
    }
}

/// A column that the user has made wider or narrower stays so when the list's size changes.
void ColumnWidths::note_drag() {
    if (filling_ || !(QGuiApplication::mouseButtons() & Qt::LeftButton)) return;
    const auto* list = qobject_cast<const QAbstractScrollArea*>(header_.parent());
    if (list != nullptr) beyond_ = length() - list->viewport()->width();
}

}  // namespace machine::qt
