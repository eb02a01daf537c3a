#pragma once

#include "platform/controls/status_bar.h"
#include "platform/qt/binder.h"

#include <vector>

class QStatusBar;
class QToolButton;

namespace platform::qt {

/// Makes a flat button `STBar1_1` for each panel, that keys reach too; the screen's list `pictures` has the
/// pictures.
class StatusBarBinder : public WidgetBinder {
  public:
    StatusBarBinder(BoundForm& bound, StatusBar& control, QStatusBar& bar);
    void refresh(Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;
    void show_panels();
    void click(int number, MouseButton button);

    StatusBar& control_;
    QStatusBar& bar_;
    std::vector<QToolButton*> panels_;
};

}  // namespace platform::qt
