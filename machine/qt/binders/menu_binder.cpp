#include "machine/qt/binders/menu_binder.h"

#include "machine/qt/look/late_icon.h"
#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/text_conversion.h"

#include <QAction>
#include <QMenu>

namespace machine::qt {

using platform::Aspect;
using platform::Menu;

MenuBinder::MenuBinder(BoundForm& bound, Menu& control, QAction& action)
    : Binder(bound, control), control_(control), action_(action) {
    action.setText(to_qstring(control.caption()));
    if (const QString picture = action.property("picture").toString(); !picture.isEmpty())
        action.setIcon(late_icon(picture));
    action.setSeparator(control.caption() == u"-");
    for (const Aspect aspect : {Aspect::enabled, Aspect::visible, Aspect::value}) refresh(aspect);
    if (action.menu() == nullptr) {
        connect(&action, &QAction::triggered, this, [this] { click(); });
    }
}

void MenuBinder::refresh(Aspect aspect) {
    switch (aspect) {
        case Aspect::enabled:
            return action_.setEnabled(control_.enabled());
        case Aspect::visible:
            return action_.setVisible(control_.visible());
        case Aspect::value:
            if (control_.checked()) action_.setCheckable(true);
            return action_.setChecked(control_.checked());
        default:
            return;
    }
}

void MenuBinder::click() {
    commit_composition();
    if (is_bound_live()) control_.Click.raise();
    // The toolkit has turned the mark by itself; whether it stays so is the handler's to say.
    if (is_bound_live()) refresh(Aspect::value);
}

}  // namespace machine::qt
