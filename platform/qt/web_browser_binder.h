#pragma once

#include "platform/controls/web_browser.h"
#include "platform/qt/binder.h"

namespace platform::qt {

class WebArea;

class WebBrowserBinder : public WidgetBinder {
  public:
    WebBrowserBinder(BoundForm& bound, WebBrowser& control, WebArea& area);
    void refresh(Aspect aspect) override;

  private:
    void navigate();
    QString place(const QString& name);

    WebBrowser& control_;
    WebArea& area_;
};

}  // namespace platform::qt
