#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/bars.h"

#include <vector>

class QAction;
class QStatusBar;
class QTabBar;
class QToolBar;
class QToolButton;

namespace machine::qt {

/// A menu is bound by the action that opens it.
class MenuBinder : public BinderOf<platform::Menu, QAction, Binder> {
  public:
    MenuBinder(BoundForm& bound, platform::Menu& control, QAction& action);
    void refresh(platform::Aspect aspect) override;

  private:
    void click();
};

/// Makes a flat button `STBar1_1` for each panel, so that keys reach it too. The screen's list `pictures` has
/// the pictures.
class StatusBarBinder : public BinderOf<platform::StatusBar, QStatusBar> {
  public:
    StatusBarBinder(BoundForm& bound, platform::StatusBar& control, QStatusBar& bar);

  private:
    void show(platform::Aspect aspect) override;
    bool filter(QObject& object, QEvent& event) override;
    void show_panels();
    void click(int number, platform::MouseButton button);

    std::vector<QToolButton*> panels_;
};

/// With the screen's `turnedByCtrlTab`, Ctrl+Tab and Ctrl+Shift+Tab anywhere in the window choose the next
/// tab and the one before.
class TabStripBinder : public BinderOf<platform::TabStrip, QTabBar> {
  public:
    TabStripBinder(BoundForm& bound, platform::TabStrip& control, QTabBar& bar);

  private:
    void show(platform::Aspect aspect) override;
    void choose(int index);
    void turn_by_keys();
};

/// Makes an action `Toolbar1_2` for each button. The screen's list `pictures` has a name for each,
/// its list `shortcuts` a key or nothing.
class ToolBarBinder : public BinderOf<platform::ToolBar, QToolBar> {
  public:
    ToolBarBinder(BoundForm& bound, platform::ToolBar& control, QToolBar& bar);

  private:
    void show(platform::Aspect aspect) override;
    void show_buttons();

    std::vector<QAction*> actions_;
};

}  // namespace machine::qt
