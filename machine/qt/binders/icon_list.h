#pragma once

#include "machine/qt/look/late_icon.h"

#include <QIcon>
#include <QObject>
#include <QVariant>

namespace machine::qt {

/// The picture of a number, counted from 1, in a list of picture names that the screen gives a bar as a
/// property. No picture for 0, for an empty name and behind the end.
inline QIcon icon_of_list(const QObject& bar, const char* property, int number) {
    const QString name = bar.property(property).toStringList().value(number - 1);
    return name.isEmpty() ? QIcon() : late_icon(name);
}

}  // namespace machine::qt
