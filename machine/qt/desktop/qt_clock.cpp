#include "machine/qt/desktop/qt_clock.h"

#include "machine/qt/desktop/long_work.h"

#include <QDateTime>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <QTimer>

namespace machine::qt {

using platform::LocalTime;
using platform::Ticker;

namespace {

class QtTicker : public Ticker {
  public:
    QtTicker(int milliseconds, std::function<void()> tick) {
        // The slot shares the tick's data: the tick may destroy its own ticker.
        auto kept = std::make_shared<Tick>(Tick{std::move(tick), false});
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [kept] { run(*kept); });
        timer_.start(milliseconds);
    }

  private:
    struct Tick {
        std::function<void()> action;
        bool running;
    };

    /// Does nothing while the tick runs: it may open a box, and the timer goes on meanwhile.
    static void run(Tick& tick) {
        if (tick.running || is_keeping_painted()) return;
        const QScopedValueRollback<bool> running(tick.running, true);
        tick.action();
    }

    QTimer timer_;
};

}  // namespace

LocalTime QtClock::now() {
    const QDateTime now = QDateTime::currentDateTime();
    return LocalTime(std::chrono::seconds(now.toSecsSinceEpoch() + now.offsetFromUtc()));
}

double QtClock::timer() {
    constexpr std::int64_t A_DAY = 24LL * 60 * 60 * 1000;
    const std::int64_t now = QDateTime::currentMSecsSinceEpoch();
    // Asking for the time zone is slow, so it is done once a second.
    if (const std::int64_t second = now / 1000; second != zone_asked_at_) {
        zone_asked_at_ = second;
        zone_ = QDateTime::currentDateTime().offsetFromUtc() * 1000LL;
    }
    return static_cast<double>((now + zone_) % A_DAY) / 1000;
}

void QtClock::pause(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

std::unique_ptr<Ticker> QtClock::every(int milliseconds, std::function<void()> tick) {
    return std::make_unique<QtTicker>(milliseconds, std::move(tick));
}

}  // namespace machine::qt
