#include "machine/qt/binders/key_of_caption.h"

#include <QVariant>
#include <QWidget>

namespace machine::qt {

QString caption_with_key(const QWidget& widget, const QString& caption) {
    const QString key = widget.property("mnemonic").toString();
    if (key.isEmpty() || caption.isEmpty() || caption.contains(u'&')) return caption;
    const qsizetype end = caption.endsWith(u':') ? caption.size() - 1 : caption.size();
    return QString(caption).insert(end, QStringLiteral("(&%1)").arg(key));
}

}  // namespace machine::qt
