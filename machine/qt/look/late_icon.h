#pragma once

#include <QIcon>
#include <QList>
#include <QString>
#include <functional>

namespace machine::qt {

/// An icon that is made when it is first painted: most pictures of a window are in menus, on panels and in
/// lists that nobody sees at the start, and making one reads its file.
QIcon late_icon(std::function<QIcon()> make);

/// The program's own picture of the name, as "app", made late.
QIcon late_icon(const QString& name);

/// The pictures that the screen names in the widget's property `pictures`; an empty name is no picture.
QList<QIcon> pictures_of(const QObject& widget);

}  // namespace machine::qt
