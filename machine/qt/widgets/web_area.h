#pragma once

#include "machine/qt/modules/web/web_module.h"

#include <QWidget>
#include <memory>
#include <optional>

class QLabel;
class QProgressBar;

namespace machine::qt {

/// The place of a web page in a window. The module is loaded for the first page that is painted. While there
/// is no page, or when there cannot be one, a notice says so.
class WebArea : public QWidget {
    Q_OBJECT

  public:
    explicit WebArea(QWidget* parent = nullptr);
    ~WebArea() override;

    /// Applies to pages that are made from now on.
    void set_files(PageFiles files) { files_ = std::move(files); }

    /// Goes to the page when the area is next painted; an empty address shows nothing.
    void show_page(PageRequest request);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void open_waiting_page();
    void make_page(WebModule& web);
    PageFiles guarded_files();
    void show_view();
    void show_progress(int percent);
    void show_crash();
    /// Why there is no page.
    void show_obstacle(const QString& text);
    void show_notice(const QString& text);
    void lay_out();

    QLabel& notice_;
    QProgressBar& progress_;
    std::unique_ptr<WebPage> page_;
    std::optional<PageRequest> waiting_;
    PageFiles files_;
    /// While the user is asked where to save a file, the page that hands it out must not be destroyed.
    bool asking_ = false;
};

}  // namespace machine::qt
