#include "machine/qt/desktop/end_requests.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSocketNotifier>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace machine::qt {

namespace {

constexpr int SIGNALS[] = {SIGTERM, SIGHUP, SIGINT};

/// The counter that wakes the event loop. Of all that a signal's handler wants, it may write.
volatile std::sig_atomic_t counter = -1;

void wake_event_loop(int) {
    const int error = errno;
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(counter, &one, sizeof one);
    errno = error;
}

void handle(int signal, void (*handler)(int)) {
    struct sigaction action {};
    ::sigaction(signal, nullptr, &action);
    // Started to outlive its terminal.
    if (action.sa_handler == SIG_IGN) return;
    action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

}  // namespace

EndRequests::EndRequests(std::function<void()> end)
    : end_(std::move(end)), signal_came_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (signal_came_.is_open()) hear_signals();
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { end_(); });
    qGuiApp->installEventFilter(this);
}

EndRequests::~EndRequests() {
    for (const int signal : SIGNALS) handle(signal, SIG_DFL);
    counter = -1;
}

void EndRequests::hear_signals() {
    auto* notifier = new QSocketNotifier(signal_came_.number(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        eventfd_t requests = 0;
        if (::eventfd_read(signal_came_.number(), &requests) == 0) end_();
    });
    counter = signal_came_.number();
    for (const int signal : SIGNALS) handle(signal, wake_event_loop);
}

/// A desktop that has waited for the log-out's savings asks the program to quit. Qt would close all windows,
/// the main window before the boxes over it.
bool EndRequests::eventFilter(QObject* object, QEvent* event) {
    if (object != qGuiApp || event->type() != QEvent::Quit) return false;
    end_();
    return true;
}

}  // namespace machine::qt
