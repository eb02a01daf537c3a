#include "machine/qt/widgets/marked_cell.h"

#include "machine/qt/look/colours.h"
#include "machine/qt/look/signs.h"
#include "platform/controls/list_item.h"

#include <algorithm>

namespace machine::qt {

using platform::RowMark;

namespace {

QColor colour_of(RowMark mark, const Colours& colours) {
    switch (mark) {
        case RowMark::failed:
            return colours.failure;
        case RowMark::uncertain:
        case RowMark::unusable:
            return colours.warning;
        case RowMark::none:
        case RowMark::done:
            break;
    }
    return colours.muted;
}

/// The text of a row that is not chosen, or is chosen in a list without the focus, where the ground is pale.
void write_in(QPalette& palette, const QColor& colour) {
    palette.setColor(QPalette::Text, colour);
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, colour);
}

void write_muted(QPalette& palette, const Colours& colours) {
    constexpr double PALER = 0.3;
    write_in(palette, colours.muted);
    const QColor on_accent = palette.color(QPalette::Active, QPalette::HighlightedText);
    palette.setColor(QPalette::Active, QPalette::HighlightedText, between(on_accent, colours.accent, PALER));
}

}  // namespace

/// A row without a sign is as high as one with it.
QSize MarkedCell::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    constexpr int AIR = 8;
    const QSize needed = QStyledItemDelegate::sizeHint(option, index);
    return {needed.width(), std::max(needed.height(), option.fontMetrics.height() + AIR)};
}

void MarkedCell::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const auto mark = static_cast<RowMark>(index.data(MARK_ROLE).toInt());
    if (mark == RowMark::none) return;
    const Colours colours = colours_of(option->palette);
    if (!index.data(SIGN_ROLE).toBool()) {
        if (mark == RowMark::unusable) write_muted(option->palette, colours);
        return;
    }
    const QColor colour = colour_of(mark, colours);
    write_in(option->palette, colour);
    option->icon = sign_icon(mark == RowMark::done ? Sign::done : Sign::attention, colour,
                             option->palette.color(QPalette::Active, QPalette::HighlightedText));
    const int side = option->fontMetrics.height() - 2;
    option->decorationSize = QSize(side, side);
    option->features |= QStyleOptionViewItem::HasDecoration;
}

}  // namespace machine::qt
