#include "machine/qt/modules/network/qt_transfer.h"

#include "machine/qt/modules/network/qt_internet.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QUrl>
#include <algorithm>

namespace machine::qt {

using platform::ErrorNumber;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;

namespace {

/// How much Qt reads ahead. When that is full the server has to wait.
constexpr qint64 READ_AHEAD = qint64{512} * 1024;
/// How much is read from Qt at a time: each read has to notify its thread.
constexpr std::size_t BUFFER = std::size_t{64} * 1024;

QString to_qstring(TextView text) {
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

Text to_text(const QByteArray& bytes) {
    return Text(reinterpret_cast<const char16_t*>(QString::fromLatin1(bytes).utf16()),
                static_cast<std::size_t>(bytes.size()));
}

/// Allows only web addresses: Qt would also open files and its own resources.
QUrl web_address(const Text& text) {
    QString address = to_qstring(platform::trim(text));
    static const QRegularExpression scheme_first(QStringLiteral("^[A-Za-z0-9+.-]*://"));
    if (!scheme_first.match(address).hasMatch()) address.prepend(QStringLiteral("http://"));
    QUrl url(address);
    const QString scheme = url.scheme();
    if (scheme != QStringLiteral("http") && scheme != QStringLiteral("https"))
        throw RuntimeError(ErrorNumber::protocol_not_supported);
    if (!url.isValid() || url.host().isEmpty()) throw RuntimeError(ErrorNumber::request_not_completed);
    return url;
}

QNetworkRequest request_for(const QUrl& url) {
    QNetworkRequest request(url);
    const auto set = [&](QNetworkRequest::Attribute attribute, int value) {
        request.setAttribute(attribute, value);
    };
    set(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    set(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    set(QNetworkRequest::CacheSaveControlAttribute, false);
    set(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    set(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    set(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    set(QNetworkRequest::Http2AllowedAttribute, false);
    // A compressed answer could grow without limit, and its length would not be the one in the header.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

/// Whether the connection failed; an answer with an error status did not.
bool is_broken(QNetworkReply::NetworkError error) {
    return error != QNetworkReply::NoError &&
           !(error >= QNetworkReply::ContentAccessDenied && error <= QNetworkReply::UnknownContentError) &&
           !(error >= QNetworkReply::InternalServerError && error <= QNetworkReply::UnknownServerError);
}

}  // namespace

QtTransfer::QtTransfer(QtInternet& internet) : internet_(internet) {
    silence_timer_.setSingleShot(true);
    answer_timer_.setSingleShot(true);
    QObject::connect(&silence_timer_, &QTimer::timeout, &silence_timer_, [this] {
        const bool something_lies_here = reply_ != nullptr && reply_->bytesAvailable() > 0;
        if (!has_ended() && !something_lies_here) fail(ErrorNumber::request_timed_out);
    });
    QObject::connect(&answer_timer_, &QTimer::timeout, &answer_timer_,
                     [this] { fail(ErrorNumber::request_timed_out); });
}

QtTransfer::~QtTransfer() { drop_reply(); }

void QtTransfer::execute(const Text& url) {
    drop_reply();
    failure_.reset();
    buffer_.clear();
    place_ = 0;
    received_ = 0;

    reply_ = internet_.manager().get(request_for(web_address(url)));
    reply_->setReadBufferSize(READ_AHEAD);
    listener_ = std::make_unique<QObject>();
    const auto wake = [this] {
        silence_timer_.start();
        if (waiting_ != nullptr) waiting_->quit();
    };
    QObject::connect(reply_, &QNetworkReply::metaDataChanged, listener_.get(), wake);
    QObject::connect(reply_, &QNetworkReply::readyRead, listener_.get(), wake);
    QObject::connect(reply_, &QNetworkReply::finished, listener_.get(), wake);
    silence_timer_.start(internet_.limits().silence_milliseconds);
    answer_timer_.start(internet_.limits().answer_milliseconds);
}

bool QtTransfer::has_header() const {
    return reply_ != nullptr && reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
}

bool QtTransfer::has_ended() const { return reply_ == nullptr || reply_->isFinished(); }

bool QtTransfer::still_executing() const { return !failure_ && !has_header() && !has_ended(); }

const QNetworkReply& QtTransfer::answer() const {
    expect_no_failure();
    if (!has_header()) throw RuntimeError(ErrorNumber::request_not_completed);
    return *reply_;
}

void QtTransfer::expect_no_failure() const {
    if (failure_) throw RuntimeError(*failure_);
}

Text QtTransfer::header() const {
    const QNetworkReply& reply = answer();
    QByteArray header = "HTTP/1.1 " +
                        reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toByteArray() + " " +
                        reply.attribute(QNetworkRequest::HttpReasonPhraseAttribute).toByteArray() + "\r\n";
    for (const auto& [name, value] : reply.rawHeaderPairs()) header += name + ": " + value + "\r\n";
    return to_text(header);
}

Text QtTransfer::header(TextView name) const {
    return to_text(answer().rawHeader(to_qstring(name).toLatin1()));
}

std::string QtTransfer::chunk(std::size_t size) {
    std::string bytes;
    expect_no_failure();
    while (bytes.size() < size && (place_ < buffer_.size() || fill_buffer())) {
        const std::size_t taken = std::min(size - bytes.size(), buffer_.size() - place_);
        bytes.append(buffer_, place_, taken);
        place_ += taken;
    }
    return bytes;
}

/// Waits for more of the body. Returns false at its end.
bool QtTransfer::fill_buffer() {
    place_ = 0;
    buffer_.resize(BUFFER);
    for (;;) {
        expect_no_failure();
        if (reply_ == nullptr) throw RuntimeError(ErrorNumber::request_not_completed);
        const qint64 got = reply_->read(buffer_.data(), static_cast<qint64>(buffer_.size()));
        if (got > 0) {
            buffer_.resize(static_cast<std::size_t>(got));
            received_ += buffer_.size();
            if (received_ > internet_.limits().body_bytes) fail(ErrorNumber::request_not_completed);
            expect_no_failure();
            return true;
        }
        if (has_ended()) break;
        wait();
    }
    buffer_.clear();
    // Qt takes some broken connections for a regular end.
    const qint64 promised = reply_->header(QNetworkRequest::ContentLengthHeader).toLongLong();
    if (is_broken(reply_->error()) || static_cast<qint64>(received_) < promised)
        throw RuntimeError(ErrorNumber::request_not_completed);
    return false;
}

std::string QtTransfer::open_url(const Text& url, std::size_t at_most) {
    execute(url);
    std::string body = chunk(at_most);
    drop_reply();
    return body;
}

void QtTransfer::cancel() { fail(ErrorNumber::dialog_cancelled); }

void QtTransfer::wait() {
    QEventLoop loop;
    const QScopedValueRollback<QEventLoop*> waiting(waiting_, &loop);
    loop.exec();
}

void QtTransfer::fail(ErrorNumber failure) {
    failure_ = failure;
    drop_reply();
    if (waiting_ != nullptr) waiting_->quit();
}

void QtTransfer::drop_reply() {
    silence_timer_.stop();
    answer_timer_.stop();
    listener_.reset();
    if (reply_ == nullptr) return;
    if (!reply_->isFinished()) reply_->abort();
    reply_->deleteLater();
    reply_ = nullptr;
}

}  // namespace machine::qt
