#pragma once

#include "platform/boolean_word.h"
#include "platform/controls/event.h"
#include "platform/ports/platform.h"

#include <cstdint>
#include <memory>

namespace update {

/// What the number of `Download::DLECode` means.
enum DownloadFailure : std::int32_t {
    TRANSFER_FAILED = 1,
    FILE_NOT_FOUND = 2,
    HEADER_FAILED = 3,
    CANCELLED = 4,
};

/// Fetches one file by HTTP into a local file, chunk by chunk, and reports its progress and failures by
/// events alone. Set the address and the place, then call GetFileInformation, then download.
class Download {
  public:
    explicit Download(platform::Platform& platform);

    const platform::Text& url() const { return url_; }
    void set_url(platform::Text url);
    /// The path of the local file.
    const platform::Text& save_location() const { return save_location_; }
    void set_save_location(platform::Text path);
    /// Bytes of one read.
    std::int32_t chunk() const { return chunk_; }
    void set_chunk(std::int32_t bytes);
    /// What GetFileInformation found: whether the server has the file, and how many bytes it says it has.
    platform::BooleanWord file_exists() const { return file_exists_; }
    std::int32_t file_size() const { return file_size_; }

    /// Asks for the file and reads the header of the answer.
    void GetFileInformation();
    /// Receives the file. The local file is overwritten in place and not truncated.
    void download();
    /// Asks the running operation to stop.
    void Cancel();

    /// Seconds as "5 초", "1 분 0 초" or "2 시 3 분".
    static platform::Text FormatTime(float sglTime);
    /// Bytes in the unit that suits their size, the number formatted by `Mask`.
    static platform::Text FormatFileSize(double dFileSize, platform::TextView Mask = u"");

    platform::Event<> DLComplete;
    /// A text for the user.
    platform::Event<const platform::Text&> DLError;
    /// A DownloadFailure.
    platform::Event<std::int32_t> DLECode;
    platform::Event<std::int32_t> RecievedBytes;
    platform::Event<std::int32_t> Percent;
    platform::Event<const platform::Text&> StatusChange;
    platform::Event<const platform::Text&> Rate;
    platform::Event<const platform::Text&> TimeLeft;
    /// The name of a property that has been set.
    platform::Event<const platform::Text&> PropertyChanged;

  private:
    void read_header();
    void tell_missing();
    void tell_cancelled(const platform::Text& status);
    void receive(platform::OpenFile& file);
    void close_file();
    void tell_progress();
    void tell_transfer_failure();

    platform::Clock& clock_;
    platform::Files& files_;
    std::unique_ptr<platform::Transfer> I1_;
    std::unique_ptr<platform::OpenFile> file_;

    platform::Text url_;
    platform::Text save_location_;
    std::int32_t chunk_ = 1024;
    platform::BooleanWord file_exists_;
    std::int32_t file_size_ = 0;

    std::int32_t received_ = 0;
    platform::BooleanWord cancelled_;
    /// Seconds since midnight.
    float start_time_ = 0;
    /// Bytes a second.
    float rate_ = 0;
    /// Seconds.
    float time_left_ = 0;
};

}  // namespace update
