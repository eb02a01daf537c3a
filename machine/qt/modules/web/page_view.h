#pragma once

#include "machine/qt/modules/web/guarded_page.h"
#include "machine/qt/modules/web/narrow_profile.h"
#include "machine/qt/modules/web/page_downloads.h"
#include "machine/qt/modules/web/web_module.h"

#include <QObject>
#include <QWebEngineView>

namespace machine::qt {

/// One page with its view, its profile and its downloads, all of which end with it.
class PageView : public QObject, public WebPage {
    Q_OBJECT

  public:
    PageView(QWidget& parent, PageEvents events);

    QWidget& widget() override { return *view_; }
    void load(const PageRequest& request) override;

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void zoom();

    std::function<void(int)> progress_;
    NarrowProfile profile_;
    PageDownloads downloads_;
    // In this order: the page has to be destroyed before its profile, and the view before the page.
    GuardedPage page_{profile_};
    std::unique_ptr<QWebEngineView> view_;
};

}  // namespace machine::qt
