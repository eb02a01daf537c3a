#include "machine/qt/desktop/form_window.h"

#include "machine/qt/desktop/panes.h"
#include "machine/qt/desktop/screens.h"
#include "machine/qt/typing/conversion.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSplitter>
#include <QStyle>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace machine::qt {

using platform::Placement;
using platform::WindowState;

namespace {

/// A window that is out of sight, on another of the user's desktops or minimised, is never painted.
constexpr int LONGEST_WAIT_FOR_PAINT = 2000;

WindowState state_of(const QWidget& window) {
    if (window.isMinimized()) return WindowState::minimised;
    return window.isMaximized() ? WindowState::maximised : WindowState::normal;
}

/// The place moved and cut so that the window and its title lie in the work area of the screen under its
/// middle: one kept on a larger screen or at another scale could not be reached.
QRect in_work_area(const QWidget& window, QRect place) {
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    if (screen == nullptr) screen = QGuiApplication::primaryScreen();
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QRect area = screen->availableGeometry();
    place.setSize(place.size().boundedTo(area.size() - QSize(0, title)));
    const auto moved = [](int start, int size, int first, int room) {
        return std::max(std::min(start, first + room - size), first);
    };
    place.moveTo(moved(place.left(), place.width(), area.left(), area.width()),
                 moved(place.top(), place.height() + title, area.top(), area.height()));
    return place;
}

Qt::WindowStates toolkit_state(WindowState state) {
    switch (state) {
        case WindowState::minimised:
            return Qt::WindowMinimized;
        case WindowState::maximised:
            return Qt::WindowMaximized;
        case WindowState::normal:
            break;
    }
    return Qt::WindowNoState;
}

/// A screen cannot tell anything of the handles: its splitters make them.
void explain_handles(const QWidget& window) {
    for (const QSplitter* splitter : window.findChildren<QSplitter*>()) {
        for (int handle = 1; handle < splitter->count(); ++handle)
            splitter->handle(handle)->setToolTip(QStringLiteral("끌면 양쪽의 크기가 바뀝니다."));
    }
}

}  // namespace

FormWindow::FormWindow(platform::Form& form, QWidget& window, platform::Files& files)
    : QObject(&window),
      form_(form),
      window_(window),
      bound_{form, window, files, std::nullopt},
      binder_(bound_, *this),
      width_limits_(window) {
    // Qt would offer a menu that hides the tool bar.
    window.setContextMenuPolicy(Qt::NoContextMenu);
    explain_handles(window);
    caption_changed();
    minimum_size_changed();
    placed_ = place();
    form.window_placed(placed_, WindowState::normal);
    form.attach(this);
    window.installEventFilter(this);
}

FormWindow::~FormWindow() {
    if (!bound_.live) return;
    binder_.release();
    form_.attach(nullptr);
}

void FormWindow::show() {
    if (!window_.isVisible()) put(window_.geometry());
    window_.show();
    window_.raise();
    window_.activateWindow();
    if (!activated_) QTimer::singleShot(LONGEST_WAIT_FOR_PAINT, this, &FormWindow::activate_first);
}

void FormWindow::show_in_front_of(QWidget* parent) {
    // A new parent makes the window forget which of its widgets has the focus.
    QWidget* focus = window_.focusWidget();
    const bool maximisable = window_.property("maximisable").toBool();
    window_.setParent(parent, maximisable ? DIALOG_FRAME | Qt::WindowMaximizeButtonHint : DIALOG_FRAME);
    window_.setWindowModality(Qt::ApplicationModal);
    if (focus != nullptr) focus->setFocus();
    make_room_for_wrapped_texts();
    show();
}

/// The sizes of dialogs are chosen for texts of the usual size.
void FormWindow::make_room_for_wrapped_texts() {
    QLayout* layout = window_.layout();
    if (layout == nullptr || !layout->hasHeightForWidth()) return;
    for (const QWidget* child : window_.findChildren<QWidget*>()) child->ensurePolished();
    layout->invalidate();
    const int height = layout->totalHeightForWidth(window_.width());
    if (height > window_.height()) put({window_.pos(), QSize(window_.width(), height)});
}

void FormWindow::close() {
    binder_.release();
    form_.attach(nullptr);
    window_.hide();
    window_.deleteLater();
    emit closed();
}

void FormWindow::caption_changed() { window_.setWindowTitle(to_qstring(form_.caption())); }

void FormWindow::placement_changed() {
    const QScopedValueRollback<bool> placing(placing_, true);
    // When only the state changes, the desktop keeps the place.
    if (const Placement& wanted = form_.placement(); wanted != placed_) {
        put({to_pixels(wanted.left), to_pixels(wanted.top), to_pixels(wanted.width),
             to_pixels(wanted.height)});
        placed_ = wanted;
    }
    window_.setWindowState(toolkit_state(form_.window_state()));
}

void FormWindow::put(const QRect& place) {
    const QRect shown = in_work_area(window_, place);
    window_.resize(shown.size());
    window_.move(shown.topLeft());
}

/// As small as the form wants, but with a large font no smaller than what it shows. Before it is shown, it
/// has panels that will be hidden. A window that grows with the font stays on the screen.
void FormWindow::minimum_size_changed() {
    const QSize size(form_.minimum_width(), form_.minimum_height());
    if (size.isEmpty()) return;
    const QSize most = in_work_area(window_, QRect(QPoint(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX))).size();
    const QSize contents = window_.isVisible() ? window_.minimumSizeHint() : QSize();
    const QSize before = window_.size();
    window_.setMinimumSize(size.expandedTo(contents).boundedTo(most));
    if (window_.isVisible() && window_.size() != before)
        window_.move(in_work_area(window_, {window_.pos(), window_.size()}).topLeft());
}

void FormWindow::fit_contents() {
    window_.adjustSize();
    placed_ = place();
    form_.window_placed(placed_, form_.window_state());
}

bool FormWindow::eventFilter(QObject*, QEvent* event) {
    if (!bound_.live) return false;
    switch (event->type()) {
        case QEvent::KeyPress:
            return press_key(static_cast<const QKeyEvent&>(*event));
        case QEvent::Close:
            // The form decides whether to close: when it unloads itself, that closes the window.
            event->ignore();
            form_.close_requested();
            return true;
        case QEvent::Paint:
            if (!activated_)
                QMetaObject::invokeMethod(this, &FormWindow::activate_first, Qt::QueuedConnection);
            return false;
        case QEvent::WindowActivate:
            activate_again();
            return false;
        case QEvent::FontChange:
            width_limits_.fit();
            return false;
        case QEvent::LayoutRequest:
            minimum_size_changed();
            return false;
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowStateChange:
            report_place();
            return false;
        default:
            return false;
    }
}

bool FormWindow::press_key(const QKeyEvent& event) {
    if (event.key() == Qt::Key_F6) return move_to_pane(window_, event.modifiers() != Qt::ShiftModifier);
    if (event.key() != Qt::Key_Escape) return false;
    form_.escape_pressed();
    return true;
}

/// Not before the window has been painted: the form's first work may keep the event loop waiting, and the
/// user would look at a black window. But whether or not the desktop has given it the focus, which may come
/// late or never.
void FormWindow::activate_first() {
    if (activated_ || !bound_.live) return;
    activated_ = true;
    activated_early_ = !window_.isActiveWindow();
    form_.window_activated();
}

void FormWindow::activate_again() {
    if (!activated_ || std::exchange(activated_early_, false)) return;
    form_.window_activated();
}

Placement FormWindow::place() const {
    return {to_twips(window_.x()), to_twips(window_.y()), to_twips(window_.width()),
            to_twips(window_.height())};
}

void FormWindow::report_place() {
    if (placing_ || !window_.isVisible()) return;
    placed_ = place();
    form_.window_placed(placed_, state_of(window_));
}

}  // namespace machine::qt
