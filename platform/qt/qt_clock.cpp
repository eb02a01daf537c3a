#include "platform/qt/qt_clock.h"

#include <QDateTime>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <QTimer>

namespace platform::qt {

namespace {

class QtTicker : public Ticker {
  public:
    QtTicker(int milliseconds, std::function<void()> tick)
        : tick_(std::make_shared<Tick>(Tick{std::move(tick), false})) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { run(tick_); });
        timer_.start(milliseconds);
    }

  private:
    struct Tick {
        std::function<void()> action;
        bool running;
    };

    /// The tick may end its own ticker, and it may open a box under which the timer goes on.
    static void run(const std::shared_ptr<Tick> tick) {
        if (tick->running) return;
        const QScopedValueRollback<bool> running(tick->running, true);
        tick->action();
    }

    std::shared_ptr<Tick> tick_;
    QTimer timer_;
};

}  // namespace

LocalTime QtClock::now() {
    const QDateTime now = QDateTime::currentDateTime();
    return LocalTime(std::chrono::seconds(now.toSecsSinceEpoch() + now.offsetFromUtc()));
}

void QtClock::pause(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

std::unique_ptr<Ticker> QtClock::every(int milliseconds, std::function<void()> tick) {
    return std::make_unique<QtTicker>(milliseconds, std::move(tick));
}

}  // namespace platform::qt
