#pragma once

#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>

namespace machine::qt {

/// Whether the page itself may be of this address.
bool is_web_address(const QUrl& address);

/// Lets nothing but the web's own requests pass.
class WebOnly : public QWebEngineUrlRequestInterceptor {
  public:
    void interceptRequest(QWebEngineUrlRequestInfo& request) override;
};

/// What a page may know and do: it is Korean, runs its scripts and keeps its cookies as long as it is shown.
/// It leaves nothing on the disk of itself, and the next page knows nothing of it.
class NarrowProfile : public QWebEngineProfile {
    Q_OBJECT

  public:
    NarrowProfile();

  private:
    WebOnly web_only_;
};

}  // namespace machine::qt
