#include "machine/qt/binders/tab_strip_binder.h"

#include "machine/qt/typing/text_conversion.h"

#include <QTabBar>

namespace machine::qt {

using platform::Aspect;
using platform::TabStrip;
using platform::Text;

TabStripBinder::TabStripBinder(BoundForm& bound, TabStrip& control, QTabBar& bar)
    : WidgetBinder(bound, control, bar), control_(control), bar_(bar) {
    for (const Text& caption : control.captions()) bar.addTab(to_qstring(caption));
    refresh(Aspect::value);
    // A click comes for the tab that is chosen already too. It tells of itself before the bar changes its
    // tab, so what changes the tab after it is a key.
    connect(&bar, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index >= 0) choose(index);
    });
    connect(&bar, &QTabBar::currentChanged, this, [this](int index) {
        if (is_bound_live() && index != control_.selected() - 1) choose(index);
    });
}

void TabStripBinder::refresh(Aspect aspect) {
    if (aspect == Aspect::value) return bar_.setCurrentIndex(control_.selected() - 1);
    WidgetBinder::refresh(aspect);
}

void TabStripBinder::choose(int index) {
    act([&] { control_.select(index + 1); });
}

}  // namespace machine::qt
