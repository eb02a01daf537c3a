#pragma once

#include <QIcon>
#include <QString>
#include <functional>

namespace machine::qt {

/// An icon that is made when it is first painted: most pictures of a window are in menus, on panels and in
/// lists that nobody sees at the start, and making one reads its file.
QIcon late_icon(std::function<QIcon()> make);

/// The program's own picture of the name, as "app", made late.
QIcon late_icon(const QString& name);

}  // namespace machine::qt
