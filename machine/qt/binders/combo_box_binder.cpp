#include "machine/qt/binders/combo_box_binder.h"

#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/typing/field_events.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace machine::qt {

using platform::Aspect;

ComboBoxBinder::ComboBoxBinder(BoundForm& bound, platform::ComboBox& control, QComboBox& combo)
    : BinderOf(bound, control, combo) {
    combo.setEditable(is_editable());
    if (is_editable()) {
        // The text stays as the user types it: Qt must not complete it, add it to the rows or replace it by a
        // similar row.
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

void ComboBoxBinder::show(Aspect aspect) {
    if (aspect == Aspect::rows) {
        show_rows();
    } else if (aspect == Aspect::value || aspect == Aspect::text) {
        write_back();
    }
}

bool ComboBoxBinder::filter(QObject&, QEvent& event) {
    if (!is_editable()) return false;
    return filter_field_event(
        widget(), event, [](platform::KeyPressed&) {},
        [this](bool begins) {
            working_ = begins;
            if (!begins) edits_.settle();
        });
}

QString ComboBoxBinder::widget_text() const {
    return is_editable() ? to_lines(widget().lineEdit()->text()).remove(u'\n') : QString();
}

void ComboBoxBinder::give_to_model() {
    if (!control().takes_input()) return write_back();
    control().user_edit(to_text(widget_text()));
}

void ComboBoxBinder::write_back() {
    const QScopedValueRollback<bool> working(working_, true);
    const QString text = to_qstring(control().text());
    if (is_editable() && text != widget_text()) drop_composition(widget());
    widget().setCurrentIndex(control().list_index());
    if (is_editable() && text != widget().lineEdit()->text()) widget().setEditText(text);
    edits_.written();
}

void ComboBoxBinder::show_rows() {
    {
        const QScopedValueRollback<bool> working(working_, true);
        const auto& rows = control().rows();
        if (static_cast<std::size_t>(widget().count()) + 1 != rows.size()) widget().clear();
        for (auto row = static_cast<std::size_t>(widget().count()); row < rows.size(); ++row) {
            widget().addItem(to_qstring(rows[row]));
        }
    }
    write_back();
}

void ComboBoxBinder::choose(int index) {
    if (!is_bound_live()) return;
    if (!control().takes_input()) return write_back();
    if (!is_editable()) return act([&] { control().user_choose(index); });
    // The choice has replaced the text and the unfinished syllable in it.
    edits_.written();
    drop_composition(widget());
    edits_.run([&] { control().user_choose(index); });
    edits_.settle();
}

}  // namespace machine::qt
