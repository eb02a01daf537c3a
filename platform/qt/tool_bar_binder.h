#pragma once

#include "platform/controls/tool_bar.h"
#include "platform/qt/binder.h"

#include <vector>

class QAction;
class QToolBar;

namespace platform::qt {

/// Makes an action `Toolbar1_2` for each button; the screen's list `icons` has a name for each.
class ToolBarBinder : public WidgetBinder {
  public:
    ToolBarBinder(BoundForm& bound, ToolBar& control, QToolBar& bar);
    void refresh(Aspect aspect) override;

  private:
    void show_buttons();

    ToolBar& control_;
    std::vector<QAction*> actions_;
};

}  // namespace platform::qt
