#include "machine/qt/binders/combo_box_binder.h"

#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/field_events.h"
#include "machine/qt/typing/text_conversion.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace machine::qt {

using platform::Aspect;
using platform::ComboBox;
using platform::KeyPressed;

ComboBoxBinder::ComboBoxBinder(BoundForm& bound, ComboBox& control, QComboBox& combo)
    : WidgetBinder(bound, control, combo), control_(control), combo_(combo) {
    combo.setEditable(is_editable());
    if (is_editable()) {
        // The text is the user's: nothing is completed, entered into the rows or exchanged for a row that is
        // like it.
        combo.setCompleter(nullptr);
        combo.setInsertPolicy(QComboBox::NoInsert);
        combo.setDuplicatesEnabled(true);
    }
    show_rows();
    connect(&combo, &QComboBox::activated, this, [this](int index) { choose(index); });
    connect(&combo, &QComboBox::editTextChanged, this, [this] {
        if (!working_)
            QMetaObject::invokeMethod(
                this, [this] { edits_.settle(); }, Qt::QueuedConnection);
    });
}

void ComboBoxBinder::refresh(Aspect aspect) {
    switch (aspect) {
        case Aspect::rows:
            return show_rows();
        case Aspect::value:
        case Aspect::text:
            return write_back();
        default:
            return WidgetBinder::refresh(aspect);
    }
}

bool ComboBoxBinder::filter(QObject&, QEvent& event) {
    if (!is_editable()) return false;
    return filter_field_event(
        combo_, event, [](KeyPressed&) {},
        [this](bool begins) {
            working_ = begins;
            if (!begins) edits_.settle();
        });
}

QString ComboBoxBinder::widget_text() const {
    return is_editable() ? to_lines(combo_.lineEdit()->text()).remove(u'\n') : QString();
}

void ComboBoxBinder::hand_over() { control_.user_edit(to_text(widget_text())); }

void ComboBoxBinder::write_back() {
    const QScopedValueRollback<bool> working(working_, true);
    const QString text = to_qstring(control_.text());
    if (is_editable() && text != widget_text()) drop_composition(combo_);
    combo_.setCurrentIndex(control_.list_index());
    if (is_editable() && text != combo_.lineEdit()->text()) combo_.setEditText(text);
    edits_.written();
}

void ComboBoxBinder::show_rows() {
    {
        const QScopedValueRollback<bool> working(working_, true);
        const auto& rows = control_.rows();
        if (static_cast<std::size_t>(combo_.count()) + 1 != rows.size()) combo_.clear();
        for (auto row = static_cast<std::size_t>(combo_.count()); row < rows.size(); ++row) {
            combo_.addItem(to_qstring(rows[row]));
        }
    }
    write_back();
}

void ComboBoxBinder::choose(int index) {
    // In an editable box the choice has replaced the text already, an unfinished syllable with it.
    if (!is_bound_live()) return;
    if (!is_editable()) return act([&] { control_.set_list_index(index); });
    edits_.written();
    drop_composition(combo_);
    edits_.run([&] { control_.set_list_index(index); });
    edits_.settle();
}

}  // namespace machine::qt
