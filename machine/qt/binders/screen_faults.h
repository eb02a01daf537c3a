#pragma once

#include "platform/controls/form.h"
#include "platform/ports/files.h"

#include <QString>
#include <QWidget>
#include <vector>

namespace machine::qt {

/// The faults between a form and its screen: controls without a widget or with one of a wrong kind, widgets
/// and actions without a control, and widgets without a name for a screen reader. Names that begin with "_"
/// are the screen's own.
std::vector<QString> screen_faults(platform::Form& form, QWidget& window, platform::Files& files);

}  // namespace machine::qt
