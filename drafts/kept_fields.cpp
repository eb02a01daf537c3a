#include "drafts/kept_fields.h"

#include "platform/error.h"
#include "platform/text/format.h"
#include "platform/text/number.h"

#include <algorithm>

namespace drafts {

using compose::frmZent;
using platform::Text;
using platform::TextView;

namespace {

// Names of the file; those that others need stand in the header.
constexpr TextView SUBJECT_FIXED = u"subject_fixed";
constexpr TextView LONG_TEXT = u"text_may_be_long";
constexpr TextView PERSONAL = u"personal";
constexpr TextView VOICE_SOURCE = u"voice_source";
constexpr TextView SOUND_FILE = u"sound_file";
constexpr TextView DOCUMENTS = u"documents";
constexpr TextView SCHEDULED = u"scheduled";
constexpr TextView DATE = u"date";
constexpr TextView HOUR = u"hour";
constexpr TextView MINUTE = u"minute";
constexpr TextView REPLY = u"reply";
constexpr TextView REPLY_NUMBERS = u"reply_numbers";
constexpr TextView TYPED_NAME = u"typed_name";
constexpr TextView TYPED_NUMBER = u"typed_number";
constexpr TextView PIECES_OF = u"pieces_of";

Text flag(bool set) { return set ? u"1" : u""; }

/// The documents' paths, a line each.
Text documents_of(const frmZent& form) {
    Text paths;
    for (std::size_t row = 0; row < form.fax.FAX1.row_count(); ++row)
        paths += form.fax.FAX1.row(row).text() + u"\n";
    return paths;
}

void show_documents(frmZent& form, const Text& paths) {
    form.fax.FAX1.clear();
    for (const TextView path : platform::split(paths, u'\n'))
        if (!path.empty()) form.fax.add(Text(path));
}

/// A number of at most eight digits, whatever stands in the file.
int number(const Fields& fields, TextView name) {
    return static_cast<int>(std::clamp(platform::leading_number(field(fields, name)), -1.0, 99'999'999.0));
}

void show_schedule(frmZent& form, const Fields& fields) {
    if (field(fields, SCHEDULED).empty()) return form.schedule.Option1.set_chosen(true);
    form.schedule.Option2.set_chosen(true);
    // A damaged value leaves the time that choosing a schedule has set.
    const int date = number(fields, DATE);
    if (date > 0) {
        form.schedule.DTP1.set_value(platform::make_time(date / 10000, date / 100 % 100, date % 100));
        platform::ignore_errors([&] { form.schedule.Combo1.set_list_index(number(fields, HOUR)); });
        platform::ignore_errors([&] { form.schedule.Combo2.set_list_index(number(fields, MINUTE)); });
    }
}

/// Begins the value, which the store could otherwise take for one that begins with a mark of the byte order.
constexpr char16_t RECORDING_BEGINS = u'|';

platform::Samples recording_in(TextView value) {
    if (value.starts_with(RECORDING_BEGINS)) value.remove_prefix(1);
    const TextView samples = value.substr(0, platform::SoundRecorder::LIMIT);
    return {samples.begin(), samples.end()};
}

}  // namespace

Text kept_recording(platform::SampleView recording) {
    Text value(1, RECORDING_BEGINS);
    value.append(recording.begin(), recording.end());
    return value;
}

Text field(const Fields& fields, TextView name) {
    const auto found = fields.find(Text(name));
    return found == fields.end() ? Text() : found->second;
}

bool has_content(const frmZent& form) {
    return form.recipients.ListView1.row_count() > 0 || !form.text.body().empty() ||
           !form.plus.body().empty() || !platform::trim(form.voice.ttsText.text()).empty() ||
           !form.voice.TTSFileTxt.text().empty() || form.fax.FAX1.row_count() > 0 ||
           !form.voice.RFK1.recording().empty() || !form.recipients.HText1[0].text().empty() ||
           !form.recipients.HText1[1].text().empty();
}

Fields fields_of(const frmZent& form) {
    Fields fields;
    const auto put = [&fields](TextView name, Text value) { fields.emplace(name, std::move(value)); };
    put(fields::CONTENT, flag(has_content(form)));
    put(fields::KIND, platform::decimal(form.TabStrip1.selected()));
    put(fields::SUBJECT, form.subject.subjectText.text());
    put(SUBJECT_FIXED, form.subject.subjectText.tag());
    put(fields::TEXT, form.text.mText1.text());
    put(LONG_TEXT, form.text.mText1.tag());
    put(PERSONAL, flag(form.text.Check1.checked()));
    put(fields::PLUS_TEXT, form.plus.mText2.text());
    put(VOICE_SOURCE, platform::decimal(form.voice.TabStrip2.selected()));
    put(fields::SPEECH, form.voice.ttsText.text());
    put(SOUND_FILE, form.voice.TTSFileTxt.text());
    put(DOCUMENTS, documents_of(form));
    put(SCHEDULED, flag(form.schedule.Option2.chosen()));
    put(DATE, platform::format_date(form.schedule.DTP1.value(), u"yyyyMMdd"));
    put(HOUR, platform::decimal(form.schedule.Combo1.list_index()));
    put(MINUTE, platform::decimal(form.schedule.Combo2.list_index()));
    put(REPLY, flag(form.reply.Check2.checked()));
    put(REPLY_NUMBERS, platform::decimal(form.reply.Combo4.list_index()));
    put(TYPED_NAME, form.recipients.HText1[0].text());
    put(TYPED_NUMBER, form.recipients.HText1[1].text());
    put(PIECES_OF, form.recipients.ListView1.tag());
    return fields;
}

void show_fields(frmZent& form, const Fields& fields) {
    // The kind first: choosing it begins its texts anew.
    platform::ignore_errors([&] { form.TabStrip1.select(number(fields, fields::KIND)); });
    form.subject.fix();
    form.text.Check1.set_checked(!field(fields, PERSONAL).empty());
    form.text.show_kept(field(fields, fields::TEXT), !field(fields, LONG_TEXT).empty());
    form.plus.mText2.set_text(field(fields, fields::PLUS_TEXT));
    platform::ignore_errors([&] { form.voice.TabStrip2.select(number(fields, VOICE_SOURCE)); });
    form.voice.ttsText.set_text(field(fields, fields::SPEECH));
    form.voice.TTSFileTxt.set_text(field(fields, SOUND_FILE));
    if (platform::Samples recording = recording_in(field(fields, fields::RECORDING)); !recording.empty())
        form.voice.RFK1.take_up(std::move(recording));
    show_documents(form, field(fields, DOCUMENTS));
    show_schedule(form, fields);
    form.reply.Check2.set_checked(!field(fields, REPLY).empty());
    platform::ignore_errors([&] { form.reply.Combo4.set_list_index(number(fields, REPLY_NUMBERS)); });
    form.recipients.HText1[0].set_text(field(fields, TYPED_NAME));
    form.recipients.HText1[1].set_text(field(fields, TYPED_NUMBER));
    form.recipients.ListView1.set_tag(field(fields, PIECES_OF));
    form.subject.subjectText.set_text(field(fields, fields::SUBJECT));
    form.subject.subjectText.set_tag(field(fields, SUBJECT_FIXED));
}

}  // namespace drafts
