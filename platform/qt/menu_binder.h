#pragma once

#include "platform/controls/menu.h"
#include "platform/qt/binder.h"

class QAction;

namespace platform::qt {

/// A menu is bound by the action that opens it.
class MenuBinder : public Binder {
  public:
    MenuBinder(BoundForm& bound, Menu& control, QAction& action);
    void refresh(Aspect aspect) override;

  private:
    void click();

    Menu& control_;
    QAction& action_;
};

}  // namespace platform::qt
