#include "machine/qt/binders/form_binder.h"

#include "machine/qt/binders/bar_binders.h"
#include "machine/qt/binders/button_binders.h"
#include "machine/qt/binders/combo_box_binder.h"
#include "machine/qt/binders/date_picker_binder.h"
#include "machine/qt/binders/display_binders.h"
#include "machine/qt/binders/list_view_binder.h"
#include "machine/qt/binders/sound_recorder_binder.h"
#include "machine/qt/binders/text_box_binder.h"
#include "machine/qt/binders/tree_view_binder.h"
#include "machine/qt/binders/web_browser_binder.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/widgets/animation_player.h"
#include "machine/qt/widgets/multiline_edit.h"
#include "machine/qt/widgets/recorder_panel.h"
#include "machine/qt/widgets/web_area.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>
#include <QTreeView>

namespace machine::qt {

using platform::Control;

FormBinder::FormBinder(BoundForm& bound, QObject& owner) : bound_(bound), owner_(owner) {
    for (QObject* object : bound.window.findChildren<QObject*>()) {
        if (const QString name = object->objectName(); !name.isEmpty()) named_.insert(name, object);
    }
    for (Control* control : bound.form.controls()) control->accept(*this);
    named_.clear();
}

void FormBinder::release() {
    bound_.live = false;
    for (Binder* binder : binders_) binder->release();
}

void FormBinder::visit(platform::Animation& control) { bind<AnimationBinder>(control); }
void FormBinder::visit(platform::CheckBox& control) { bind<CheckBoxBinder>(control); }
void FormBinder::visit(platform::ComboBox& control) { bind<ComboBoxBinder>(control); }
void FormBinder::visit(platform::CommandButton& control) { bind<CommandButtonBinder>(control); }
void FormBinder::visit(platform::DatePicker& control) { bind<DatePickerBinder>(control); }
void FormBinder::visit(platform::Frame& control) { bind<FrameBinder>(control); }
void FormBinder::visit(platform::Image& control) { bind<ImageBinder>(control); }
void FormBinder::visit(platform::Label& control) { bind<LabelBinder>(control); }
void FormBinder::visit(platform::ListView& control) { bind<ListViewBinder>(control); }
void FormBinder::visit(platform::OptionButton& control) { bind<OptionButtonBinder>(control); }
void FormBinder::visit(platform::PictureBox& control) { bind<PictureBoxBinder>(control); }
void FormBinder::visit(platform::ProgressBar& control) { bind<ProgressBarBinder>(control); }
void FormBinder::visit(platform::SoundRecorder& control) { bind<SoundRecorderBinder>(control); }
void FormBinder::visit(platform::StatusBar& control) { bind<StatusBarBinder>(control); }
void FormBinder::visit(platform::TabStrip& control) { bind<TabStripBinder>(control); }
void FormBinder::visit(platform::ToolBar& control) { bind<ToolBarBinder>(control); }
void FormBinder::visit(platform::TreeView& control) { bind<TreeViewBinder>(control); }
void FormBinder::visit(platform::WebBrowser& control) { bind<WebBrowserBinder>(control); }

void FormBinder::visit(platform::TextBox& control) {
    if (!try_bind<MultilineBinder>(control)) bind<LineBinder>(control);
}

void FormBinder::visit(platform::Menu& control) {
    const QString name = to_qstring(control.name());
    auto* action = find<QAction>(name);
    if (const auto* menu = find<QMenu>(name)) action = menu->menuAction();
    if (action == nullptr) return add_fault(control);
    add(new MenuBinder(bound_, control, *action));
}

template <class Kind>
Kind* FormBinder::find(const QString& name) const {
    for (auto [object, end] = named_.equal_range(name); object != end; ++object) {
        if (auto* found = qobject_cast<Kind*>(*object)) return found;
    }
    return nullptr;
}

template <class BinderType, class ControlType>
bool FormBinder::try_bind(ControlType& control) {
    auto* widget = find<typename BinderType::Shown>(to_qstring(control.name()));
    if (widget == nullptr) return false;
    add(new BinderType(bound_, control, *widget));
    return true;
}

template <class BinderType, class ControlType>
void FormBinder::bind(ControlType& control) {
    if (!try_bind<BinderType>(control)) add_fault(control);
}

void FormBinder::add(Binder* binder) {
    binder->setParent(&owner_);
    binders_.push_back(binder);
}

void FormBinder::add_fault(const Control& control) {
    const QString name = to_qstring(control.name());
    const QObject* other = find<QObject>(name);
    faults_.push_back(other == nullptr
                          ? QStringLiteral("%1: no widget for it").arg(name)
                          : QStringLiteral("%1: a %2 cannot show it")
                                .arg(name, QString::fromLatin1(other->metaObject()->className())));
}

}  // namespace machine::qt
