#include "machine/qt/typing/composition.h"

#include <QApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QVariant>
#include <QWidget>

namespace machine::qt {

namespace {

constexpr char UNFINISHED[] = "unfinishedSyllable";
constexpr char ENDED[] = "endedSyllable";

QString unfinished(const QWidget& field) { return field.property(UNFINISHED).toString(); }

/// The syllable that was ended last, until something else is typed. It is kept with the application and not
/// with the field: a late commit of the input method goes to whichever field has the focus.
QString ended() { return qApp->property(ENDED).toString(); }
void set_ended(const QString& syllable) { qApp->setProperty(ENDED, syllable); }

/// The event with which the program itself ends a composition.
class Ending : public QInputMethodEvent {};

void end(QWidget& field, const QString& syllable, const QString& commit) {
    set_ended(syllable);
    // First of all: the field's handlers may open a box, and then an input method commits what it still has.
    if (QGuiApplication::focusObject() == &field) QGuiApplication::inputMethod()->reset();
    Ending event;
    event.setCommitString(commit);
    QCoreApplication::sendEvent(&field, &event);
}

}  // namespace

bool note_composition(QWidget& field, const QInputMethodEvent& event) {
    const QString& syllable = event.preeditString();
    const QString& commit = event.commitString();
    const bool ours = dynamic_cast<const Ending*>(&event) != nullptr;
    if (!ours && !(syllable.isEmpty() && commit.isEmpty())) {
        if (syllable.isEmpty() && commit == ended()) return false;
        const bool ends = syllable.isEmpty() && commit == unfinished(field);
        set_ended(ends ? commit : QString());
    }
    if (syllable != unfinished(field)) field.setProperty(UNFINISHED, syllable);
    return true;
}

void note_key() { set_ended({}); }

bool is_composing(const QWidget& field) { return !unfinished(field).isEmpty(); }

void commit_composition(QWidget& field) {
    if (!is_composing(field)) return;
    if (QGuiApplication::focusObject() == &field) QGuiApplication::inputMethod()->commit();
    // Some input methods do not react.
    if (const QString syllable = unfinished(field); !syllable.isEmpty()) end(field, syllable, syllable);
}

void commit_composition() {
    if (QWidget* field = QApplication::focusWidget()) commit_composition(*field);
}

void drop_composition(QWidget& field) {
    if (const QString syllable = unfinished(field); !syllable.isEmpty()) end(field, syllable, QString());
}

}  // namespace machine::qt
