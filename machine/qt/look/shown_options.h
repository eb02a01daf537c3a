#pragma once

#include <QStyleOption>

class QAbstractItemView;

namespace machine::qt {

// What Qt's style is told of a control where the program's look differs: the same control with other colours,
// another picture or another state.

/// Whether it is the button that Enter presses.
bool is_filled(const QStyleOptionButton& button);

/// A filled button, with the colours of its picture and caption.
QStyleOptionButton on_accent(const QStyleOptionButton& button);

/// An entry of a menu, with the picture that can be seen on its ground.
QStyleOptionMenuItem in_menu(const QStyleOptionMenuItem& item);

/// A cell of a list. The rows chosen in a list that has not the keys are pale, so that the list that has them
/// is seen.
QStyleOptionViewItem in_view(const QStyleOptionViewItem& item, const QAbstractItemView& view);

}  // namespace machine::qt
