#pragma once

#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>

namespace machine::qt {

/// Whether a page may have this address.
bool is_web_address(const QUrl& address);

/// Blocks all requests that are not for the web.
class WebOnly : public QWebEngineUrlRequestInterceptor {
  public:
    void interceptRequest(QWebEngineUrlRequestInfo& request) override;
};

/// What a page may know and do: it is told that the user reads Korean, may run scripts and keeps cookies
/// while it is shown. It stores nothing on the disk, and the next page learns nothing of it.
class NarrowProfile : public QWebEngineProfile {
    Q_OBJECT

  public:
    NarrowProfile();

  private:
    WebOnly web_only_;
};

}  // namespace machine::qt
