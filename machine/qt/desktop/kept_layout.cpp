#include "machine/qt/desktop/kept_layout.h"

#include <QFontInfo>
#include <QHeaderView>
#include <QSettings>
#include <QSplitter>
#include <QTreeView>
#include <algorithm>
#include <utility>

namespace machine::qt {

namespace {

constexpr int TEXT_SIZE = 12;
/// No hand-written file makes a part that cannot be found or grasped any more.
constexpr int SMALLEST = 24;
constexpr int LARGEST = 4000;

int text_size(const QWidget& widget) { return std::max(QFontInfo(widget.font()).pixelSize(), 1); }

QStringList to_kept(const QList<int>& pixels, const QWidget& widget) {
    QStringList kept;
    for (const int size : pixels) kept.append(QString::number(size * TEXT_SIZE / text_size(widget)));
    return kept;
}

QList<int> to_pixels(const QStringList& kept, const QWidget& widget) {
    QList<int> pixels;
    for (const QString& size : kept)
        pixels.append(std::clamp(size.toInt() * text_size(widget) / TEXT_SIZE, SMALLEST, LARGEST));
    return pixels;
}

QString key_of(const QWidget& window, const QString& part) {
    return QStringLiteral("%1/%2").arg(window.objectName(), part);
}

bool keeps_its_size(const QWidget& window) { return window.property("maximisable").toBool(); }

QList<QTreeView*> lists_of(const QWidget& window) {
    QList<QTreeView*> lists = window.findChildren<QTreeView*>();
    lists.removeIf([](const QTreeView* list) { return !list->property("columnWidths").isValid(); });
    return lists;
}

}  // namespace

KeptLayout::KeptLayout(QString file) : file_(std::move(file)) {}
KeptLayout::~KeptLayout() = default;

void KeptLayout::restore_size(QWidget& window) {
    if (settings() == nullptr || !keeps_its_size(window)) return;
    const QStringList kept = settings()->value(key_of(window, QStringLiteral("size"))).toStringList();
    if (const QList<int> size = to_pixels(kept, window); size.size() == 2) window.resize(size[0], size[1]);
}

void KeptLayout::restore_parts(QWidget& window) {
    const auto kept = [&](const QObject& part) {
        return settings() == nullptr ? QStringList()
                                     : settings()->value(key_of(window, part.objectName())).toStringList();
    };
    for (QSplitter* splitter : window.findChildren<QSplitter*>()) {
        QStringList sizes = kept(*splitter);
        if (sizes.size() != splitter->count()) sizes = splitter->property("first_sizes").toStringList();
        if (sizes.size() == splitter->count()) splitter->setSizes(to_pixels(sizes, window));
    }
    for (QTreeView* list : lists_of(window)) {
        QHeaderView& header = *list->header();
        const QList<int> widths = to_pixels(kept(*list), window);
        if (widths.size() != header.count()) continue;
        for (int column = 0; column < header.count(); ++column)
            if (!header.isSectionHidden(column)) header.resizeSection(column, widths[column]);
    }
}

void KeptLayout::keep(const QWidget& window) {
    if (settings() == nullptr) return;
    if (keeps_its_size(window) && !window.isMaximized()) {
        settings()->setValue(key_of(window, QStringLiteral("size")),
                             to_kept({window.width(), window.height()}, window));
    }
    for (const QSplitter* splitter : window.findChildren<QSplitter*>())
        settings()->setValue(key_of(window, splitter->objectName()), to_kept(splitter->sizes(), window));
    for (const QTreeView* list : lists_of(window)) {
        QList<int> widths;
        for (int column = 0; column < list->header()->count(); ++column)
            widths.append(list->header()->sectionSize(column));
        settings()->setValue(key_of(window, list->objectName()), to_kept(widths, window));
    }
    settings()->sync();
}

QSettings* KeptLayout::settings() {
    if (settings_ == nullptr && !file_.isEmpty())
        settings_ = std::make_unique<QSettings>(file_, QSettings::IniFormat);
    return settings_.get();
}

}  // namespace machine::qt
