#include "platform/qt/composition.h"

#include <QApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QVariant>
#include <QWidget>

namespace platform::qt {

namespace {

constexpr char UNFINISHED[] = "unfinishedSyllable";
constexpr char ENDED[] = "endedSyllable";

QString unfinished(const QWidget& field) { return field.property(UNFINISHED).toString(); }

/// Ends the composition from our side: the field gets its last event, the input method is told to start anew.
void end(QWidget& field, const QString& syllable, const QString& commit) {
    QInputMethodEvent event;
    event.setCommitString(commit);
    QCoreApplication::sendEvent(&field, &event);
    if (QGuiApplication::focusObject() == &field) QGuiApplication::inputMethod()->reset();
    field.setProperty(ENDED, syllable);
}

}  // namespace

bool note_composition(QWidget& field, const QInputMethodEvent& event) {
    const QString ended = field.property(ENDED).toString();
    if (!ended.isEmpty()) field.setProperty(ENDED, QVariant());
    if (!ended.isEmpty() && event.commitString() == ended && event.preeditString().isEmpty()) return false;
    if (event.preeditString() != unfinished(field)) field.setProperty(UNFINISHED, event.preeditString());
    return true;
}

void note_key(QWidget& field) {
    if (field.property(ENDED).isValid()) field.setProperty(ENDED, QVariant());
}

bool is_composing(const QWidget& field) { return !unfinished(field).isEmpty(); }

void commit_composition(QWidget& field) {
    if (!is_composing(field)) return;
    if (QGuiApplication::focusObject() == &field) QGuiApplication::inputMethod()->commit();
    // Not every input method obeys.
    if (const QString syllable = unfinished(field); !syllable.isEmpty()) end(field, syllable, syllable);
}

void commit_composition() {
    if (QWidget* field = QApplication::focusWidget()) commit_composition(*field);
}

void drop_composition(QWidget& field) {
    if (const QString syllable = unfinished(field); !syllable.isEmpty()) end(field, syllable, QString());
}

}  // namespace platform::qt
