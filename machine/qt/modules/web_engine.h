#pragma once

#include "platform/controls/web_browser.h"

#include <QByteArray>
#include <QString>
#include <QWidget>
#include <QtPlugin>
#include <functional>
#include <memory>

namespace machine::qt {

struct PageRequest {
    QString address;
    /// Posted as it stands; an empty one asks for the page without sending anything.
    QByteArray body;
    /// Lines of the request's head.
    QByteArray header;
};

/// The files that the user clicks for, one at a time.
struct PageFiles {
    /// In bytes; a file that grows beyond is given up.
    qint64 largest = 0;
    /// The machine's path for a file that the page proposes by this name; an empty one refuses it. The user
    /// may be asked meanwhile.
    std::function<QString(const QString& name)> place;
    /// So much of the file has come, in bytes; the size is 0 as long as the server has not told it.
    std::function<void(qint64 bytes, qint64 size)> received;
    std::function<void(platform::FileEnd end)> ended;
};

/// What becomes of a page.
struct PageEvents {
    /// Percent of the load that is done; 100 is the end of it, also of one that failed.
    std::function<void(int)> progress;
    /// The page's process has died; nothing is shown any more.
    std::function<void()> died;
    PageFiles files{};
};

/// A page on the screen, for the time of one form.
class WebPage {
  public:
    virtual ~WebPage() = default;
    virtual QWidget& widget() = 0;
    virtual void load(const PageRequest& request) = 0;
};

/// The engine that shows pages. It is heavy, so it is a module of its own that only a first page loads: what
/// the program and the module know of each other is this file.
class WebEngine {
  public:
    virtual ~WebEngine() = default;

    /// In Korean, why pages cannot be shown on this machine; empty when they can.
    virtual QString obstacle() const = 0;

    /// A page, still empty, in the parent, whose events come from the event loop.
    virtual std::unique_ptr<WebPage> open(QWidget& parent, PageEvents events) = 0;
};

}  // namespace machine::qt

Q_DECLARE_INTERFACE(machine::qt::WebEngine, "zent.WebEngine/1")
