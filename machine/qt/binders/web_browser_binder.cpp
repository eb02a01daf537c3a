#include "machine/qt/binders/web_browser_binder.h"

#include "machine/qt/typing/conversion.h"
#include "machine/qt/widgets/web_area.h"
#include "platform/error.h"

namespace machine::qt {

using platform::Aspect;
using platform::WebBrowser;

WebBrowserBinder::WebBrowserBinder(BoundForm& bound, WebBrowser& control, WebArea& area)
    : BinderOf(bound, control, area) {
    area.set_files({.largest = WebBrowser::LARGEST_FILE,
                    .place = [this](const QString& name) { return place(name); },
                    .received =
                        [this](qint64 bytes, qint64 size) {
                            if (is_bound_live()) this->control().FileReceived.raise(bytes, size);
                        },
                    .ended =
                        [this](platform::FileEnd end) {
                            if (is_bound_live()) this->control().FileEnded.raise(end);
                        }});
    if (!control.navigation().address.empty()) navigate();
}

void WebBrowserBinder::show(Aspect aspect) {
    if (aspect == Aspect::value) navigate();
}

QString WebBrowserBinder::place(const QString& name) {
    if (!is_bound_live()) return {};
    platform::PageFile file{.name = to_text(name), .path = {}};
    control().FileOffered.raise(file);
    QString path;
    if (!file.path.empty()) {
        platform::ignore_errors(
            [&] { path = QString::fromStdString(bound().files.machine_path(file.path)); });
    }
    return path;
}

void WebBrowserBinder::navigate() {
    const platform::Navigation& to = control().navigation();
    widget().show_page({.address = to_qstring(to.address).trimmed(),
                        .body = QByteArray::fromStdString(to.body),
                        .header = to_qstring(to.header).toLatin1()});
}

}  // namespace machine::qt
