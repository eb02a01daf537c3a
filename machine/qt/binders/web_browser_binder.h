#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/web_browser.h"

namespace machine::qt {

class WebArea;

class WebBrowserBinder : public BinderOf<platform::WebBrowser, WebArea> {
  public:
    WebBrowserBinder(BoundForm& bound, platform::WebBrowser& control, WebArea& area);

  private:
    void show(platform::Aspect aspect) override;
    void navigate();
    QString place(const QString& name);
};

}  // namespace machine::qt
