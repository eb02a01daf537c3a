#pragma once

#include "machine/qt/modules/load_module.h"
#include "platform/controls/web_browser.h"

#include <QByteArray>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>

namespace machine::qt {

struct PageRequest {
    QString address;
    /// Posted unchanged; without a body the page is fetched by GET.
    QByteArray body;
    /// Lines of the request's header.
    QByteArray header;
};

/// Files that a page hands out after a click of the user, one at a time.
struct PageFiles {
    /// In bytes; the download of a larger file is cancelled.
    qint64 largest = 0;
    /// Returns the machine's path for a file of the proposed name, or an empty one to refuse it. May ask the
    /// user in between.
    std::function<QString(const QString& name)> place;
    /// Bytes received so far and the size of the file, 0 when the server does not say it.
    std::function<void(qint64 bytes, qint64 size)> received;
    std::function<void(platform::FileEnd end)> ended;
};

/// What the program wants to know of a page.
struct PageEvents {
    /// Percent of the page that is loaded; 100 also ends a load that failed.
    std::function<void(int)> progress;
    /// The page's process has crashed; the page shows nothing any more.
    std::function<void()> died;
    PageFiles files{};
};

/// A page in a form; it goes with the form.
class WebPage {
  public:
    virtual ~WebPage() = default;
    virtual QWidget& widget() = 0;
    virtual void load(const PageRequest& request) = 0;
};

/// Shows the service's pages.
class WebModule {
  public:
    static constexpr ModuleInfo MODULE{"웹 페이지", "zent_web", "cardvale-messaging-pages"};

    virtual ~WebModule() = default;

    /// In Korean, why pages cannot be shown on this machine; empty when they can.
    virtual QString obstacle() const = 0;

    /// Makes an empty page in the parent; its events come from the event loop.
    virtual std::unique_ptr<WebPage> open(QWidget& parent, PageEvents events) = 0;
};

}  // namespace machine::qt

Q_DECLARE_INTERFACE(machine::qt::WebModule, "zent.WebModule/1")
