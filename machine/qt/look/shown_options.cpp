#include "machine/qt/look/shown_options.h"

#include "machine/qt/look/late_icon.h"

#include <QAbstractItemView>

namespace machine::qt {

bool is_filled(const QStyleOptionButton& button) {
    return button.features.testFlag(QStyleOptionButton::DefaultButton);
}

QStyleOptionButton on_accent(const QStyleOptionButton& button) {
    QStyleOptionButton shown(button);
    shown.palette.setColor(QPalette::ButtonText,
                           button.palette.color(QPalette::Active, QPalette::HighlightedText));
    if (!shown.icon.isNull()) shown.icon = icon_in_mode(shown.icon, QIcon::Selected);
    return shown;
}

QStyleOptionMenuItem in_menu(const QStyleOptionMenuItem& item) {
    QStyleOptionMenuItem shown(item);
    const bool on_accent = item.state.testFlags(QStyle::State_Selected | QStyle::State_Enabled);
    if (on_accent && !shown.icon.isNull()) shown.icon = icon_in_mode(shown.icon, QIcon::Selected);
    return shown;
}

QStyleOptionViewItem in_view(const QStyleOptionViewItem& item, const QAbstractItemView& view) {
    QStyleOptionViewItem shown(item);
    if (!view.hasFocus()) shown.state.setFlag(QStyle::State_Active, false);
    if (view.property("quietSelection").toBool()) shown.state.setFlag(QStyle::State_Selected, false);
    if (!shown.state.testFlag(QStyle::State_Active) && !shown.icon.isNull())
        shown.icon = icon_in_mode(shown.icon, QIcon::Normal);
    return shown;
}

}  // namespace machine::qt
