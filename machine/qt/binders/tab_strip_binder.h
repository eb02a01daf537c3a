#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/bars.h"

class QTabBar;

namespace machine::qt {

class TabStripBinder : public WidgetBinder {
  public:
    TabStripBinder(BoundForm& bound, platform::TabStrip& control, QTabBar& bar);
    void refresh(platform::Aspect aspect) override;

  private:
    void choose(int index);

    platform::TabStrip& control_;
    QTabBar& bar_;
};

}  // namespace machine::qt
