#pragma once

#include <QString>

class QInputMethodEvent;
class QWidget;

/// The unfinished syllable of an input method in a text field. It is not part of the text yet: before
/// anything uses the text, the syllable has to become text (commit) or be discarded (drop), exactly once.
namespace machine::qt {

/// Records the unfinished syllable that the event leaves in the field; to be called before the field handles
/// the event. Returns false for an event that has to be discarded: some input methods commit a dropped or
/// committed syllable a second time, possibly into another field that has the focus by then.
bool note_composition(QWidget& field, const QInputMethodEvent& event);

/// Records a key press: a second commit of the same syllable cannot follow it.
void note_key();

bool is_composing(const QWidget& field);

/// Turns the unfinished syllable of the field into text.
void commit_composition(QWidget& field);

/// Turns the unfinished syllable of the field with the focus into text.
void commit_composition();

/// Discards the unfinished syllable of the field.
void drop_composition(QWidget& field);

}  // namespace machine::qt
