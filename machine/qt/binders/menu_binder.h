#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/bars.h"

class QAction;

namespace machine::qt {

/// A menu is bound by the action that opens it.
class MenuBinder : public Binder {
  public:
    MenuBinder(BoundForm& bound, platform::Menu& control, QAction& action);
    void refresh(platform::Aspect aspect) override;

  private:
    void click();

    platform::Menu& control_;
    QAction& action_;
};

}  // namespace machine::qt
