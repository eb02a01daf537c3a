#include "machine/qt/binders/drops.h"

#include "machine/qt/typing/conversion.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace machine::qt {

void answer_drag(QDropEvent& event, bool takes) {
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(takes && (event.mimeData()->hasText() || event.mimeData()->hasUrls()));
}

platform::Dropped dropped_by(const QDropEvent& event, const platform::Files& files) {
    platform::Dropped dropped;
    for (const QUrl& url : event.mimeData()->urls())
        if (url.isLocalFile()) dropped.files.push_back(files.path_of(url.toLocalFile().toStdString()));
    if (dropped.files.empty()) dropped.text = program_text(event.mimeData()->text());
    return dropped;
}

}  // namespace machine::qt
