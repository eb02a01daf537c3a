#pragma once

#include "tests/support/virtual_clock.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <functional>

namespace tests {

/// A clock that stands still and whose pauses last until an event has happened.
class EventClock : public VirtualClock {
  public:
    void pause(int) override {
        meanwhile();
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    std::function<void()> meanwhile = [] {};
};

}  // namespace tests
