#pragma once

#include <QIcon>
#include <QList>
#include <QString>
#include <functional>

namespace machine::qt {

/// An icon that is made when it is first painted. Making it reads a file, and most pictures of a window are
/// in menus, panels and lists that nobody sees at the start.
QIcon late_icon(std::function<QIcon()> make);

/// The program's picture with that name, such as "app", as a late icon.
QIcon late_icon(const QString& name);

/// The icon as it is drawn in that mode, wherever it is painted.
QIcon icon_in_mode(const QIcon& icon, QIcon::Mode mode);

/// The pictures that the screen names in the widget's property `pictures`; an empty name is no picture.
QList<QIcon> pictures_of(const QObject& widget);

}  // namespace machine::qt
