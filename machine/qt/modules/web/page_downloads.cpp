#include "machine/qt/modules/web/page_downloads.h"

#include <QFileInfo>
#include <QWebEngineProfile>
#include <algorithm>
#include <utility>

namespace machine::qt {

using platform::FileEnd;

PageDownloads::PageDownloads(QWebEngineProfile& profile, PageFiles files) : files_(std::move(files)) {
    connect(&profile, &QWebEngineProfile::downloadRequested, this,
            [this](QWebEngineDownloadRequest* download) { take(*download); });
}

/// Cancelling removes the part that was downloaded.
PageDownloads::~PageDownloads() {
    if (current_ == nullptr) return;
    current_->disconnect(this);
    current_->cancel();
}

/// A server may answer a click slowly, but not when the user has forgotten it.
bool PageDownloads::has_leave() {
    constexpr qint64 LONGEST_ANSWER = 30'000;
    const QElapsedTimer since_act = std::exchange(since_act_, QElapsedTimer());
    return since_act.isValid() && !since_act.hasExpired(LONGEST_ANSWER);
}

void PageDownloads::take(QWebEngineDownloadRequest& download) {
    if (current_ != nullptr || download.isSavePageDownload() || !has_leave()) return download.cancel();
    current_ = &download;
    const QString path = files_.place(download.downloadFileName());
    if (path.isEmpty()) {
        current_ = nullptr;
        return download.cancel();
    }
    // The engine writes to a temporary file beside this one and renames it when it is complete.
    const QFileInfo place(path);
    download.setDownloadDirectory(place.absolutePath());
    download.setDownloadFileName(place.fileName());
    too_large_ = false;
    connect(&download, &QWebEngineDownloadRequest::receivedBytesChanged, this,
            [this, &download] { watch_size(download); });
    connect(&download, &QWebEngineDownloadRequest::totalBytesChanged, this,
            [this, &download] { watch_size(download); });
    connect(&download, &QWebEngineDownloadRequest::isFinishedChanged, this,
            [this, &download] { end(download); });
    download.accept();
}

void PageDownloads::watch_size(QWebEngineDownloadRequest& download) {
    const qint64 size = std::max<qint64>(download.totalBytes(), 0);
    // A cancelled download counts from 0 again.
    if (too_large_) return;
    too_large_ = std::max(download.receivedBytes(), size) > files_.largest;
    if (!too_large_) return files_.received(download.receivedBytes(), size);
    download.cancel();
}

void PageDownloads::end(const QWebEngineDownloadRequest& download) {
    if (!download.isFinished()) return;
    current_ = nullptr;
    if (download.state() == QWebEngineDownloadRequest::DownloadCompleted) return files_.ended(FileEnd::whole);
    files_.ended(too_large_ ? FileEnd::too_large : FileEnd::broken);
}

}  // namespace machine::qt
