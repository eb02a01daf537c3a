#include "machine/qt/desktop/qt_desktop.h"

#include "machine/qt/desktop/form_window.h"
#include "machine/qt/desktop/input_box.h"
#include "machine/qt/desktop/long_work.h"
#include "machine/qt/desktop/message_box.h"
#include "machine/qt/desktop/notification.h"
#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/conversion.h"
#include "platform/controls/bars.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFontInfo>
#include <QMenu>
#include <QScreen>
#include <algorithm>

/// Makes the linker keep the pictures, which are in a static library.
static void load_pictures() { Q_INIT_RESOURCE(resource); }

namespace machine::qt {

using platform::BoxAnswer;
using platform::Form;
using platform::Menu;
using platform::Pointer;
using platform::Text;

namespace {

/// Asks for the focus of the window behind a closed one: not every desktop gives it back, and some lose it
/// when two windows close one after the other, even when asked. So it asks again later if no window is
/// active. It does not ask when another window of ours is active.
void give_back_focus(QWidget* window) {
    constexpr int LATE = 200;
    if (window == nullptr) return;
    const QWidget* active = QApplication::activeWindow();
    if (active != nullptr && active != window && active->isVisible()) return;
    window->activateWindow();
    QTimer::singleShot(LATE, window, [window] {
        if (QApplication::activeWindow() == nullptr && window->isVisible()) window->activateWindow();
    });
}

}  // namespace

QtDesktop::QtDesktop(const Screens& screens, platform::Files& files, const QString& layout_file)
    : screens_(screens), files_(files), file_dialog_(files), layout_(layout_file) {
    load_pictures();
    QObject::connect(&help_key_, &HelpKey::pressed, [this] { help_requested(active_form()); });
    QObject::connect(&closing_, &QTimer::timeout, [this] { close_front_window(); });
}

QtDesktop::~QtDesktop() {
    for (const auto& [form, window] : windows_) {
        if (window != nullptr) delete &window->window();
    }
}

void QtDesktop::run_until_closed(const Form& form) {
    wait_for_close(form);
    // No code of a closed window is running any more, so it can be deleted.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtDesktop::close_all() {
    // A window closes when the event loop that it runs has ended, and what opened it may ask a question then.
    constexpr int BETWEEN_WINDOWS = 50;
    closing_.start(BETWEEN_WINDOWS);
    close_front_window();
}

void QtDesktop::prepare(Form& form) {
    QWidget* window = screens_.build(form.name()).release();
    layout_.restore_size(*window);
    windows_[&form] = new FormWindow(form, *window, files_);
    layout_.restore_parts(*window);
}

void QtDesktop::show(Form& form) {
    if (FormWindow* window = window_of(form)) window->show();
}

void QtDesktop::show_modal(Form& form) {
    commit_composition();
    FormWindow* window = window_of(form);
    if (window == nullptr) return;
    const QPointer<QWidget> front = front_window();
    const platform::StandingInFront standing(*this, &form);
    window->show_in_front_of(front);
    wait_for_close(form);
    give_back_focus(front);
}

void QtDesktop::close(Form& form) {
    const auto found = windows_.find(&form);
    if (found == windows_.end()) return;
    const QPointer<FormWindow> window = found->second;
    windows_.erase(found);
    if (window == nullptr) return;
    layout_.keep(window->window());
    window->close();
}

void QtDesktop::popup_menu(Form& form, Menu& menu) {
    FormWindow* window = window_of(form);
    if (window == nullptr) return;
    auto* popup = window->window().findChild<QMenu*>(to_qstring(menu.name()));
    if (popup != nullptr) popup->exec(window->popup_point().value_or(QCursor::pos()));
}

void QtDesktop::popup_menu_below(Form& form, Menu& menu, const platform::Control& control) {
    FormWindow* window = window_of(form);
    if (window == nullptr) return;
    auto* popup = window->window().findChild<QMenu*>(to_qstring(menu.name()));
    const auto* widget = window->window().findChild<QWidget*>(to_qstring(control.name()));
    if (popup != nullptr && widget != nullptr) popup->exec(widget->mapToGlobal(QPoint(0, widget->height())));
}

BoxAnswer QtDesktop::message_box(const platform::MessageBox& box) {
    commit_composition();
    const QPointer<QWidget> front = front_window();
    const platform::StandingInFront standing(*this);
    const BoxAnswer answer = ask(box, title_, last_key_, front);
    give_back_focus(front);
    return answer;
}

std::optional<Text> QtDesktop::ask_for_file(const platform::FileQuestion& question) {
    commit_composition();
    const QPointer<QWidget> front = front_window();
    const platform::StandingInFront standing(*this);
    std::optional<Text> chosen = file_dialog_.ask(question, front);
    give_back_focus(front);
    return chosen;
}

Text QtDesktop::input_box(const platform::InputBox& box) {
    commit_composition();
    const QPointer<QWidget> front = front_window();
    const platform::StandingInFront standing(*this);
    Text answer = ask_for_text(box, front);
    give_back_focus(front);
    return answer;
}

/// The hourglass is a state, not a count: setting it twice needs one reset only.
void QtDesktop::set_pointer(Pointer pointer) {
    const bool hourglass = pointer == Pointer::hourglass;
    if (hourglass == hourglass_) return;
    hourglass_ = hourglass;
    if (hourglass) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}

void QtDesktop::set_clipboard(const Text& text) { QGuiApplication::clipboard()->setText(to_qstring(text)); }

Text QtDesktop::clipboard_text() const { return to_text(QGuiApplication::clipboard()->text()); }

platform::Screen QtDesktop::screen() const {
    // Of text of 10 points.
    constexpr double USUAL_PIXELS = 13;
    const QRect free = QGuiApplication::primaryScreen()->availableGeometry();
    return {.left = to_twips(free.left()),
            .top = to_twips(free.top()),
            .width = to_twips(free.width()),
            .height = to_twips(free.height()),
            .twips_per_pixel_x = TWIPS_PER_PIXEL,
            .twips_per_pixel_y = TWIPS_PER_PIXEL,
            .text_size = qMax(QFontInfo(QApplication::font()).pixelSize() / USUAL_PIXELS, 1.0)};
}

void QtDesktop::set_application_title(const Text& title) { title_ = to_qstring(title); }

void QtDesktop::notify(const Text& text) {
    if (QGuiApplication::applicationState() == Qt::ApplicationActive) return;
    QApplication::alert(front_window());
    send_notification(title_, to_qstring(text));
}

void QtDesktop::yield() { QCoreApplication::processEvents(); }

void QtDesktop::paint() {
    constexpr int MILLISECONDS_BETWEEN = 40;
    if (painted_.isValid() && !painted_.hasExpired(MILLISECONDS_BETWEEN)) return;
    keep_painted();
    painted_.start();
}

std::unique_ptr<platform::InputWatch> QtDesktop::watch_input() { return std::make_unique<QtInputWatch>(); }

FormWindow* QtDesktop::window_of(const Form& form) const {
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second.data();
}

/// The window in front of which boxes and modal forms open. Not one that has just been closed, even if it
/// still counts as active: its children would be destroyed with it.
QWidget* QtDesktop::front_window() const {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* active = QApplication::activeWindow(); active != nullptr && active->isVisible())
        return active;
    for (const auto& [form, window] : windows_) {
        if (window != nullptr && window->window().isVisible()) return &window->window();
    }
    return nullptr;
}

const Form* QtDesktop::active_form() const {
    const auto is_active = [](const auto& form) {
        return form.second != nullptr && form.second->window().isActiveWindow();
    };
    const auto found = std::ranges::find_if(windows_, is_active);
    return found == windows_.end() ? nullptr : found->first;
}

void QtDesktop::close_front_window() const {
    // Work that only lets the windows paint is in the middle of something.
    if (is_keeping_painted()) return;
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* front = popup != nullptr ? popup : front_window();
    if (front != nullptr) front->close();
}

void QtDesktop::wait_for_close(const Form& form) const {
    const FormWindow* window = window_of(form);
    // The form may have closed itself when it was activated.
    if (window == nullptr) return;
    QEventLoop loop;
    QObject::connect(window, &FormWindow::closed, &loop, &QEventLoop::quit);
    QObject::connect(window, &QObject::destroyed, &loop, &QEventLoop::quit);
    loop.exec();
}

}  // namespace machine::qt
