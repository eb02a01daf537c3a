#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/web_browser.h"

namespace machine::qt {

class WebArea;

class WebBrowserBinder : public WidgetBinder {
  public:
    WebBrowserBinder(BoundForm& bound, platform::WebBrowser& control, WebArea& area);
    void refresh(platform::Aspect aspect) override;

  private:
    void navigate();
    QString place(const QString& name);

    platform::WebBrowser& control_;
    WebArea& area_;
};

}  // namespace machine::qt
