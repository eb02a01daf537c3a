#include "machine/qt/desktop/width_limits.h"

#include <QFontInfo>
#include <QLabel>
#include <QScreen>
#include <algorithm>

namespace machine::qt {

WidthLimits::WidthLimits(const QWidget& window)
    : window_(window), window_width_(window.minimumWidth() > 0 ? window.minimumWidth() : window.width()) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const Limits limits{widget->minimumWidth(), widget->maximumWidth()};
        const bool has_one = limits.least > 0 || limits.most < QWIDGETSIZE_MAX;
        const bool has_fixed_width = limits.least == limits.most;
        if (has_one && !has_fixed_width && qobject_cast<QLabel*>(widget) == nullptr)
            for_small_text_.insert(widget, limits);
    }
    fit();
}

void WidthLimits::fit() {
    constexpr double SMALL_TEXT = 12;
    const double scale = std::min(QFontInfo(window_.font()).pixelSize() / SMALL_TEXT,
                                  double(window_.screen()->availableSize().width()) / window_width_);
    for (const auto& [widget, limits] : for_small_text_.asKeyValueRange()) {
        widget->setMinimumWidth(static_cast<int>(limits.least * scale));
        if (limits.most < QWIDGETSIZE_MAX) widget->setMaximumWidth(static_cast<int>(limits.most * scale));
    }
}

}  // namespace machine::qt
