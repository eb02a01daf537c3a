#include "machine/qt/binders/screen_faults.h"

#include "machine/qt/binders/form_binder.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/widgets/multiline_edit.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QMenu>
#include <QTabBar>
#include <QTreeView>
#include <algorithm>

namespace machine::qt {

using platform::Form;

namespace {

bool has_control(const Form& form, const QString& name) {
    const auto& controls = form.controls();
    return std::any_of(controls.begin(), controls.end(),
                       [&](const platform::Control* control) { return to_qstring(control->name()) == name; });
}

/// Whether the widget's children are the screen's; those of other widgets are made by Qt and the binders.
bool holds_controls(const QWidget& widget) {
    const QString kind = QString::fromLatin1(widget.metaObject()->className());
    static const QStringList CONTAINERS{"QWidget", "QFrame",   "QGroupBox",   "QMainWindow",
                                        "QDialog", "QMenuBar", "QScrollArea", "QSplitter"};
    return CONTAINERS.contains(kind);
}

bool takes_the_keys(const QObject& object) {
    const auto* widget = qobject_cast<const QWidget*>(&object);
    return widget != nullptr && (widget->focusPolicy() & Qt::TabFocus) != 0;
}

bool is_worked_with(const QObject& object) {
    return qobject_cast<const QAbstractButton*>(&object) || qobject_cast<const QLineEdit*>(&object) ||
           qobject_cast<const MultilineEdit*>(&object) || qobject_cast<const QComboBox*>(&object) ||
           qobject_cast<const QDateEdit*>(&object) || qobject_cast<const QTabBar*>(&object) ||
           qobject_cast<const QTreeView*>(&object) || takes_the_keys(object);
}

bool has_accessible_name(QObject& object) {
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&object);
    return accessible != nullptr && !accessible->text(QAccessible::Name).isEmpty();
}

void look_through(const Form& form, QObject& parent, std::vector<QString>& faults) {
    for (QObject* child : parent.children()) {
        if (!child->isWidgetType() && qobject_cast<QAction*>(child) == nullptr) continue;
        const QString name = child->objectName();
        const bool own = name.isEmpty() || name.startsWith(u'_') || name.startsWith(QStringLiteral("qt_"));
        if (!own && !has_control(form, name))
            faults.push_back(QStringLiteral("%1: no control for it").arg(name));
        if (!own && is_worked_with(*child) && !has_accessible_name(*child)) {
            faults.push_back(QStringLiteral("%1: no name for a screen reader").arg(name));
        }
        if (const auto* widget = qobject_cast<QWidget*>(child)) {
            if (holds_controls(*widget)) look_through(form, *child, faults);
        }
    }
}

}  // namespace

std::vector<QString> screen_faults(Form& form, QWidget& window, platform::Files& files) {
    BoundForm bound{form, window, files, std::nullopt};
    QObject owner;
    FormBinder binder(bound, owner);
    std::vector<QString> faults = binder.faults();
    look_through(form, window, faults);
    binder.release();
    return faults;
}

}  // namespace machine::qt
