#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/bars.h"

#include <vector>

class QAction;
class QToolBar;

namespace machine::qt {

/// Makes an action `Toolbar1_2` for each button; the screen's list `icons` has a name for each.
class ToolBarBinder : public WidgetBinder {
  public:
    ToolBarBinder(BoundForm& bound, platform::ToolBar& control, QToolBar& bar);
    void refresh(platform::Aspect aspect) override;

  private:
    void show_buttons();

    platform::ToolBar& control_;
    std::vector<QAction*> actions_;
};

}  // namespace machine::qt
