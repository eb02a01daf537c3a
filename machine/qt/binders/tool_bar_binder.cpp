#include "machine/qt/binders/tool_bar_binder.h"

#include "machine/qt/binders/icon_list.h"
#include "machine/qt/typing/text_conversion.h"

#include <QToolBar>

namespace machine::qt {

using platform::Aspect;
using platform::ToolBar;

ToolBarBinder::ToolBarBinder(BoundForm& bound, ToolBar& control, QToolBar& bar)
    : WidgetBinder(bound, control, bar), control_(control) {
    for (int number = 1; number <= control.count(); ++number) {
        const ToolBar::Button& button = control.button(number);
        auto* action = new QAction(icon_of_list(bar, "icons", number), to_qstring(button.caption), &bar);
        action->setObjectName(QStringLiteral("%1_%2").arg(bar.objectName()).arg(number));
        action->setSeparator(button.caption.empty());
        action->setCheckable(button.in_group);
        bar.addAction(action);
        actions_.push_back(action);
        connect(action, &QAction::triggered, this, [this, number] {
            act([&] { control_.ButtonClick.raise(number); });
            // The toolkit has pressed the button by itself; whether it stays so is the handler's to say.
            if (is_bound_live()) show_buttons();
        });
    }
    show_buttons();
}

void ToolBarBinder::refresh(Aspect aspect) {
    if (aspect == Aspect::value) return show_buttons();
    WidgetBinder::refresh(aspect);
}

void ToolBarBinder::show_buttons() {
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        const ToolBar::Button& button = control_.button(static_cast<int>(i) + 1);
        actions_[i]->setChecked(button.pressed);
        actions_[i]->setEnabled(button.enabled);
    }
}

}  // namespace machine::qt
