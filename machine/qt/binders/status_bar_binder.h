#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/bars.h"

#include <vector>

class QStatusBar;
class QToolButton;

namespace machine::qt {

/// Makes a flat button `STBar1_1` for each panel, that keys reach too; the screen's list `pictures` has the
/// pictures.
class StatusBarBinder : public WidgetBinder {
  public:
    StatusBarBinder(BoundForm& bound, platform::StatusBar& control, QStatusBar& bar);
    void refresh(platform::Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;
    void show_panels();
    void click(int number, platform::MouseButton button);

    platform::StatusBar& control_;
    QStatusBar& bar_;
    std::vector<QToolButton*> panels_;
};

}  // namespace machine::qt
