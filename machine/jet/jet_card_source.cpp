#include "machine/jet/jet_card_source.h"

#include "machine/jet/card_connection.h"
#include "machine/jet/file/connection_string.h"
#include "machine/jet/reader/card_stream.h"
#include "machine/jet/reader/reader_process.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace machine::jet {

using platform::ErrorNumber;
using platform::RuntimeError;

namespace {

/// The stream of a sound file is never longer than this many times the file: NULLs and compressed texts grow,
/// but less.
constexpr std::size_t LONGEST_STREAM_BY_FILE = 32;

}  // namespace

JetCardSource::JetCardSource(posix::Paths paths, std::function<void()> keep_alive,
                             std::chrono::milliseconds longest_reading)
    : paths_(std::move(paths)),
      heartbeat_(std::make_shared<Heartbeat>(std::move(keep_alive))),
      longest_reading_(longest_reading) {}

std::unique_ptr<platform::CardConnection> JetCardSource::connect(const platform::Text& connection_string) {
    const auto wanted = ConnectionString::parse(connection_string);
    const CardFile file(paths_.to_read(wanted.data_source));
    const FileState state = file.state();
    if (!last_ || !last_->settled || last_->file != state) {
        last_.reset();
        last_ = Reading{.file = state, .settled = state.is_settled(), .header = file.header()};
    }
    if (!last_->header.opens_with(wanted.password)) throw RuntimeError(ErrorNumber::wrong_database_password);

    if (!last_->cards && !last_->fault) read(file, *last_);
    if (last_->fault) throw RuntimeError(*last_->fault);
    return std::make_unique<JetCardConnection>(last_->cards);
}

void JetCardSource::read(const CardFile& file, Reading& reading) {
    using std::chrono::steady_clock;

    auto cards = std::make_shared<CardDatabase>(heartbeat_);
    CardStreamParser stream([&](Table table, const Row& row) {
        cards->add(table, row);
        heartbeat_->beat();
    });
    ReaderProcess reader(paths_.program("card-reader"), file.descriptor());
    std::size_t room = LONGEST_STREAM_BY_FILE * static_cast<std::size_t>(reading.file.length);
    const auto deadline = steady_clock::now() + longest_reading_;
    for (bool goes_on = true; goes_on;) {
        std::string_view bytes;
        const auto news = reader.wait(Heartbeat::INTERVAL, bytes);
        heartbeat_->beat();
        if (steady_clock::now() > deadline) {
            throw RuntimeError(ErrorNumber::database_unusable, u"데이터베이스를 읽는 시간이 초과되었습니다.");
        }
        goes_on = news != ReaderProcess::News::end && bytes.size() <= room && stream.feed(bytes);
        room -= std::min(room, bytes.size());
    }

    if (file.state() != reading.file) {
        throw RuntimeError(ErrorNumber::database_unusable,
                           u"다른 프로그램이 데이터베이스를 바꾸고 있습니다. 잠시 뒤 다시 하십시오.");
    }
    if (!stream.is_complete()) {
        reading.fault.emplace(ErrorNumber::database_unusable,
                              u"데이터베이스 파일이 손상되어 명함을 모두 읽을 수 없습니다.");
        return;
    }
    cards->all_added();
    reading.cards = std::move(cards);
}

}  // namespace machine::jet
