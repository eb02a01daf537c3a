#pragma once

#include "platform/error.h"
#include "platform/ports/internet.h"

#include <QObject>
#include <QTimer>
#include <optional>

class QEventLoop;
class QNetworkReply;

namespace machine::qt {

class QtInternet;

/// A transfer with Qt. It never holds more of the answer than its buffers, whatever the server does.
class QtTransfer : public platform::Transfer {
  public:
    /// The network has to outlive its transfers.
    explicit QtTransfer(QtInternet& internet);
    ~QtTransfer() override;

    void execute(const platform::Text& url) override;
    bool still_executing() const override;
    platform::Text header() const override;
    platform::Text header(platform::TextView name) const override;
    std::string chunk(std::size_t size) override;
    std::string open_url(const platform::Text& url, std::size_t at_most) override;
    void cancel() override;

  private:
    bool has_header() const;
    bool has_ended() const;
    const QNetworkReply& answer() const;
    void expect_no_failure() const;
    bool fill_buffer();
    void wait();
    void fail(platform::ErrorNumber failure);
    void drop_reply();

    QtInternet& internet_;
    QNetworkReply* reply_ = nullptr;
    /// Owns the connections to the reply; gone when the reply is dropped.
    std::unique_ptr<QObject> listener_;
    QTimer silence_timer_;
    QTimer answer_timer_;
    QEventLoop* waiting_ = nullptr;
    /// Why the program itself ended the transfer: a time or size limit, or cancel().
    std::optional<platform::ErrorNumber> failure_;
    /// What has been read from the reply; `place_` is the start of what nobody has asked for yet.
    std::string buffer_;
    std::size_t place_ = 0;
    std::size_t received_ = 0;
};

}  // namespace machine::qt
