#include "update/download.h"

#include "platform/error.h"
#include "platform/text/format.h"
#include "platform/text/number.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace update {

using platform::ErrorNumber;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;

namespace {

/// Milliseconds between two looks for the header; the windows go on working meanwhile.
constexpr int ROUND = 10;

/// The place of the code in "HTTP/1.1 200 OK".
constexpr std::size_t STATUS_PLACE = 9;
constexpr std::size_t STATUS_LENGTH = 3;
/// Deliberately not 200: part of a file counts as the file, a redirect as none.
constexpr double LAST_STATUS_FOUND = 206;

double number_of(TextView text) {
    const auto number = platform::text_as_number(text);
    if (!number) throw RuntimeError(ErrorNumber::type_mismatch);
    return *number;
}

std::int32_t whole_number(double number) {
    using Limits = std::numeric_limits<std::int32_t>;
    const long whole = platform::round_half_even(number);
    if (whole < Limits::min() || whole > Limits::max()) throw RuntimeError(ErrorNumber::overflow);
    return static_cast<std::int32_t>(whole);
}

double divided(double number, double by) {
    if (by == 0) throw RuntimeError(ErrorNumber::division_by_zero);
    return number / by;
}

Text minutes_and_seconds(double seconds) {
    return platform::format_number(std::trunc(seconds / 60), u"#0") + u" 분 " +
           platform::format_number(whole_number(seconds) % 60, u"0") + u" 초";
}

Text hours_and_minutes(double seconds) {
    return platform::format_number(std::trunc(seconds / 3600), u"#0") + u" 시 " +
           platform::format_number(whole_number(seconds / 60) % 60, u"0") + u" 분";
}

}  // namespace

Download::Download(platform::Platform& platform)
    : clock_(platform.clock), files_(platform.files), I1_(platform.internet.make_transfer()) {}

void Download::set_url(Text url) {
    url_ = std::move(url);
    PropertyChanged.raise(u"Url");
}

void Download::set_save_location(Text path) {
    save_location_ = std::move(path);
    PropertyChanged.raise(u"SaveLocation");
}

void Download::set_chunk(std::int32_t bytes) {
    chunk_ = bytes;
    PropertyChanged.raise(u"CHUNK");
}

void Download::GetFileInformation() {
    try {
        I1_->execute(url_);
        StatusChange.raise(u"서버에 접속중.");
        while (I1_->still_executing()) clock_.pause(ROUND);
        StatusChange.raise(u"파일의 정보를 읽습니다.");
        cancelled_ ? tell_cancelled(u"에러.") : read_header();
    } catch (const RuntimeError&) {
        DLError.raise(u"파일의 해드부분이 에러입니다.");
        StatusChange.raise(u"파일의 해드부분 오류입니다.");
        DLECode.raise(HEADER_FAILED);
    }
}

void Download::read_header() {
    const Text header = I1_->header();
    const TextView rest = TextView(header).substr(std::min(STATUS_PLACE, header.size()));
    if (number_of(rest.substr(0, STATUS_LENGTH)) > LAST_STATUS_FOUND) return tell_missing();
    file_exists_ = true;
    // A second earlier, so that the first rate is not divided by 0.
    start_time_ = static_cast<float>(clock_.timer() - 1);
    // Deliberately a failure when the server does not say how long the file is.
    file_size_ = whole_number(number_of(I1_->header(u"Content-Length")));
    StatusChange.raise(u"파일의 정보를 읽어옵니다.");
}

void Download::tell_missing() {
    const Text text = u"파일을 찾을 수 없습니다!";
    DLError.raise(text);
    StatusChange.raise(text);
    DLECode.raise(FILE_NOT_FOUND);
    file_exists_ = false;
    file_size_ = 0;
}

void Download::tell_cancelled(const Text& status) {
    cancelled_ = false;
    DLECode.raise(CANCELLED);
    StatusChange.raise(status);
}

void Download::download() {
    try {
        file_ = files_.open_for_writing(save_location_);
        StatusChange.raise(u"서버에 접속. 관련 파일 다운중..");
        receive(*file_);
    } catch (const RuntimeError&) {
        if (!cancelled_) return tell_transfer_failure();
        // The failure is that of a read which the cancel ended.
        platform::ignore_errors([this] { close_file(); });
        tell_cancelled(u"오류.");
    }
}

void Download::receive(platform::OpenFile& file) {
    while (!cancelled_) {
        const std::string bytes = I1_->chunk(static_cast<std::size_t>(std::max(chunk_, 0)));
        file.write(bytes);
        if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max() - received_))
            throw RuntimeError(ErrorNumber::overflow);
        received_ += static_cast<std::int32_t>(bytes.size());
        tell_progress();
        // Deliberately a single byte too: it is the end of the file and has been counted.
        if (bytes.size() <= 1) {
            close_file();
            DLComplete.raise();
            StatusChange.raise(u"다운로드 성공");
            return;
        }
    }
    close_file();
    tell_cancelled(u"오류.");
}

void Download::close_file() {
    file_->flush();
    file_.reset();
}

void Download::tell_progress() {
    rate_ = static_cast<float>(divided(received_, clock_.timer() - start_time_));
    time_left_ = static_cast<float>(divided(double(file_size_) - received_, rate_));
    Rate.raise(FormatFileSize(rate_));
    TimeLeft.raise(FormatTime(time_left_));
    RecievedBytes.raise(received_);
    Percent.raise(whole_number(divided(received_, file_size_) * 100));
    StatusChange.raise(u"서버에 접속중.");
}

/// Deliberately leaves the file open and as it is: what had come of it may still be looked at, and the next
/// download opens it anew.
void Download::tell_transfer_failure() {
    if (file_ != nullptr) platform::ignore_errors([this] { file_->flush(); });
    DLError.raise(u"서버접속 에러!");
    DLError.raise(
        u"관련 프로그램이 현재 실행중에 있습니다. 실행을 종료하고 업데이트 하여 주십시오.\r\n\r\n"
        u"실행을 종료하지 않고 업데이트를 하게 되면. 다음 업데이트 파일로 계속 진행됩니다.\r\n\r\n"
        u"그러나 실행을 종료하지 않은 프로그램은 업데이트 되지 않습니다.");
    DLECode.raise(TRANSFER_FAILED);
}

void Download::Cancel() {
    cancelled_ = true;
    StatusChange.raise(u"Cancelling..");
    I1_->cancel();
}

/// Deliberately by whole ranges: a value between two of them is shown as hours.
Text Download::FormatTime(float sglTime) {
    if (sglTime >= 0 && sglTime <= 59) return platform::format_number(sglTime, u"0") + u" 초";
    return sglTime >= 60 && sglTime <= 3599 ? minutes_and_seconds(sglTime) : hours_and_minutes(sglTime);
}

/// Deliberately by whole ranges too: a fraction between two of them, and what is larger than all, gives an
/// empty text.
Text Download::FormatFileSize(double dFileSize, TextView Mask) {
    constexpr double KB = 1024, MB = KB * KB, GB = KB * MB;
    const auto format = [&](double number, TextView unit) {
        return platform::format_number(number, Mask.empty() ? TextView(u"###,0") : Mask) + Text(unit);
    };
    const auto in_range = [&](double from, double end) { return dFileSize >= from && dFileSize <= end; };
    if (in_range(0, KB - 1)) return format(dFileSize, u" Byte");
    if (in_range(KB, MB - 1)) return format(dFileSize / KB, u" KB");
    if (in_range(MB, GB - 1)) return format(dFileSize / MB, u" MB");
    return {};
}

}  // namespace update
