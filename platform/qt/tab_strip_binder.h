#pragma once

#include "platform/controls/tab_strip.h"
#include "platform/qt/binder.h"

class QTabBar;

namespace platform::qt {

class TabStripBinder : public WidgetBinder {
  public:
    TabStripBinder(BoundForm& bound, TabStrip& control, QTabBar& bar);
    void refresh(Aspect aspect) override;

  private:
    void choose(int index);

    TabStrip& control_;
    QTabBar& bar_;
};

}  // namespace platform::qt
