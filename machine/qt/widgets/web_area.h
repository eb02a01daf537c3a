#pragma once

#include "machine/qt/modules/web_engine.h"

#include <QWidget>
#include <memory>
#include <optional>

class QLabel;
class QProgressBar;

namespace machine::qt {

/// The place of a web page in a window. The engine is loaded for the first page that comes on the screen;
/// until there is something to see, and when there never will be, a line of text says so.
class WebArea : public QWidget {
    Q_OBJECT

  public:
    explicit WebArea(QWidget* parent = nullptr);
    ~WebArea() override;

    /// For the files of pages that are made from now on.
    void set_files(PageFiles files) { files_ = std::move(files); }

    /// Goes to the page once the area is on the screen; an empty address shows nothing.
    void show_page(PageRequest request);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void open_waiting_page();
    bool make_page();
    PageFiles guarded_files();
    void show_view();
    void show_progress(int percent);
    void show_death();
    void show_notice(const QString& text);
    void lay_out();

    QLabel& notice_;
    QProgressBar& progress_;
    std::unique_ptr<WebPage> page_;
    std::optional<PageRequest> waiting_;
    PageFiles files_;
    /// The user is asked where a file goes, and the page that waits for it must not go meanwhile.
    bool asking_ = false;
};

}  // namespace machine::qt
