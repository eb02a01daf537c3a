#pragma once

#include <QString>

class QInputMethodEvent;
class QWidget;

/// The syllable that an input method has unfinished in a text field. It is no text yet: before anything acts
/// on the text it has to become text (commit) or to go (drop), once and not twice.
namespace machine::qt {

/// Notes what the event leaves unfinished in the field; to be called before the field handles it. Returns
/// false for an event that has to be thrown away: some input methods commit once more what has been dropped
/// or committed, when they are told of it or while the handlers of the commit run, and into whichever field
/// has the focus by then.
bool note_composition(QWidget& field, const QInputMethodEvent& event);

/// A key on its way to a field shows that no late commit is on its way any more.
void note_key();

bool is_composing(const QWidget& field);

/// Makes text of what is unfinished in the field.
void commit_composition(QWidget& field);

/// Makes text of what is unfinished in the field that has the focus.
void commit_composition();

/// Throws away what is unfinished in the field.
void drop_composition(QWidget& field);

}  // namespace machine::qt
