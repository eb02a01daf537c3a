#pragma once

#include "tests/support/virtual_clock.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <functional>

namespace tests {

/// A clock that stands, whose pauses last until something has happened.
class EventClock : public VirtualClock {
  public:
    void pause(int) override {
        meanwhile();
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    std::function<void()> meanwhile = [] {};
};

}  // namespace tests
