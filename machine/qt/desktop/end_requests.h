#pragma once

#include "machine/posix/file_descriptor.h"

#include <QObject>
#include <functional>

namespace machine::qt {

/// Hears that the program has to end: by a signal, as a closed terminal or a shutdown sends it, or by the
/// desktop's log-out. There is one of these in the process.
class EndRequests : public QObject {
  public:
    /// Calls `end` in the event loop, once for each request. It is expected to return at once.
    explicit EndRequests(std::function<void()> end);
    ~EndRequests() override;

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void hear_signals();

    std::function<void()> end_;
    machine::posix::FileDescriptor signal_came_;
};

}  // namespace machine::qt
