#include "platform/qt/web_browser_binder.h"

#include "platform/qt/text_conversion.h"
#include "platform/qt/web_area.h"

namespace platform::qt {

WebBrowserBinder::WebBrowserBinder(BoundForm& bound, WebBrowser& control, WebArea& area)
    : WidgetBinder(bound, control, area), control_(control), area_(area) {
    if (!control.navigation().address.empty()) navigate();
}

void WebBrowserBinder::refresh(Aspect aspect) {
    if (aspect == Aspect::value) return navigate();
    WidgetBinder::refresh(aspect);
}

void WebBrowserBinder::navigate() {
    const Navigation& to = control_.navigation();
    area_.show_page({.address = to_qstring(to.address).trimmed(),
                     .body = QByteArray::fromStdString(to.body),
                     .header = to_qstring(to.header).toLatin1()});
}

}  // namespace platform::qt
