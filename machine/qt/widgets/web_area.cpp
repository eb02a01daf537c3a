#include "machine/qt/widgets/web_area.h"

#include "machine/qt/typing/conversion.h"

#include <QLabel>
#include <QProgressBar>
#include <utility>

namespace machine::qt {

namespace {

constexpr int PROGRESS_HEIGHT = 3;
/// What the progress bar shows until the first progress arrives.
constexpr int FIRST_PERCENT = 5;
constexpr int ALL_PERCENT = 100;

}  // namespace

WebArea::WebArea(QWidget* parent)
    : QWidget(parent), notice_(*new QLabel(this)), progress_(*new QProgressBar(this)) {
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
    notice_.setAlignment(Qt::AlignCenter);
    notice_.setWordWrap(true);
    notice_.setMargin(24);
    notice_.setTextFormat(Qt::PlainText);
    notice_.hide();
    progress_.setTextVisible(false);
    progress_.setAccessibleName(QStringLiteral("페이지를 여는 정도"));
    progress_.hide();
}

WebArea::~WebArea() = default;

void WebArea::show_page(PageRequest request) {
    waiting_.reset();
    if (asking_) {
        waiting_ = std::move(request);
        return;
    }
    if (request.address.isEmpty()) {
        page_.reset();
        notice_.hide();
        progress_.hide();
        return;
    }
    show_progress(FIRST_PERCENT);
    if (page_ != nullptr) {
        show_view();
        return page_->load(request);
    }
    show_notice(QStringLiteral("페이지를 여는 중입니다..."));
    waiting_ = std::move(request);
    update();
}

/// Loads the module after the window is painted: it takes a while, and the notice says so meanwhile.
void WebArea::paintEvent(QPaintEvent*) {
    if (waiting_) QMetaObject::invokeMethod(this, &WebArea::open_waiting_page, Qt::QueuedConnection);
}

void WebArea::resizeEvent(QResizeEvent*) { lay_out(); }

void WebArea::open_waiting_page() {
    const auto request = std::exchange(waiting_, std::nullopt);
    if (!request) return;
    try {
        WebModule& web = load_module<WebModule>();
        if (const QString obstacle = web.obstacle(); !obstacle.isEmpty()) return show_obstacle(obstacle);
        make_page(web);
    } catch (const platform::RuntimeError& error) {
        return show_obstacle(to_qstring(error.description()));
    }
    show_view();
    page_->load(*request);
}

void WebArea::make_page(WebModule& web) {
    const bool focus = hasFocus();
    page_ = web.open(*this, {.progress = [this](int percent) { show_progress(percent); },
                             .died = [this] { show_crash(); },
                             .files = guarded_files()});
    setFocusProxy(&page_->widget());
    if (focus) setFocus();
    lay_out();
}

PageFiles WebArea::guarded_files() {
    PageFiles files = files_;
    files.place = [this, ask = files_.place](const QString& name) {
        asking_ = true;
        const QString place = ask(name);
        asking_ = false;
        if (auto next = std::exchange(waiting_, std::nullopt)) {
            QMetaObject::invokeMethod(
                this, [this, next = std::move(*next)] { show_page(next); }, Qt::QueuedConnection);
        }
        return place;
    };
    return files;
}

void WebArea::show_view() {
    notice_.hide();
    page_->widget().show();
    progress_.raise();
}

void WebArea::show_progress(int percent) {
    progress_.setValue(percent);
    progress_.setVisible(percent < ALL_PERCENT);
}

void WebArea::show_obstacle(const QString& text) {
    progress_.hide();
    show_notice(text);
}

void WebArea::show_crash() {
    page_->widget().hide();
    show_obstacle(QStringLiteral("페이지가 예기치 않게 멈추었습니다.\n창을 닫고 다시 열어 주십시오."));
}

void WebArea::show_notice(const QString& text) {
    notice_.setText(text);
    notice_.show();
}

void WebArea::lay_out() {
    notice_.setGeometry(rect());
    progress_.setGeometry(0, 0, width(), PROGRESS_HEIGHT);
    if (page_ != nullptr) page_->widget().setGeometry(rect());
}

}  // namespace machine::qt
