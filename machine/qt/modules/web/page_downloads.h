#pragma once

#include "machine/qt/modules/web/web_module.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWebEngineDownloadRequest>

class QWebEngineProfile;

namespace machine::qt {

/// Downloads files that the user clicks for, one at a time. All other downloads of a page are refused
/// silently.
class PageDownloads : public QObject {
    Q_OBJECT

  public:
    PageDownloads(QWebEngineProfile& profile, PageFiles files);
    ~PageDownloads() override;

    /// To be called when the user has clicked in the page, which may then start one download.
    void user_acted() { since_act_.start(); }

  private:
    bool has_leave();
    void take(QWebEngineDownloadRequest& download);
    void watch_size(QWebEngineDownloadRequest& download);
    void end(const QWebEngineDownloadRequest& download);

    PageFiles files_;
    QElapsedTimer since_act_;
    QPointer<QWebEngineDownloadRequest> current_;
    bool too_large_ = false;
};

}  // namespace machine::qt
