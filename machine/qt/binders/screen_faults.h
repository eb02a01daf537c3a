#pragma once

#include "platform/controls/form.h"
#include "platform/ports/files.h"

#include <QString>
#include <QWidget>
#include <vector>

namespace machine::qt {

/// What is wrong between a form and its screen: controls without a widget or with one of a wrong kind, named
/// widgets and actions without a control, and widgets to work with that a screen reader has no name for. A
/// name of the screen's own begins with "_".
std::vector<QString> screen_faults(platform::Form& form, QWidget& window, platform::Files& files);

}  // namespace machine::qt
