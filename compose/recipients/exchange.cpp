#include "compose/recipients/exchange.h"

#include "compose/recipients/frmPasted.h"
#include "core/boxes.h"
#include "platform/error.h"
#include "platform/text/unknown_encoding.h"

namespace compose {

using platform::ListItem;
using platform::Text;

namespace {

/// A field of a line of a table.
Text cell(Text text) {
    for (char16_t& c : text) {
        if (c == u'\t' || c == u'\r' || c == u'\n') c = u' ';
    }
    return text;
}

Text line_of(const ListItem& row) {
    return cell(row.sub_item(RECIPIENT_NAME)) + u"\t" + cell(row.sub_item(RECIPIENT_NUMBER)) + u"\t" +
           cell(row.sub_item(RECIPIENT_TITLE)) + Text(platform::CRLF);
}

}  // namespace

RecipientExchange::RecipientExchange(platform::Form& form, platform::Platform& platform,
                                     RecipientList& recipients)
    : Room(form), platform_(platform), recipients_(recipients) {
    mnuPaste.Click.connect([this] { take_in(platform_.desktop.clipboard_text()); });
    mnuCopy.Click.connect([this] { copy_selected(); });
    mnuFromFile.Click.connect([this] { take_in_chosen_file(); });
    recipients.ListView1.Drop.connect([this](const platform::Dropped& dropped) { take_in(dropped); });
    for (platform::TextBox& field : recipients.HText1)
        field.LinesPasted.connect([this](const Text& lines) { take_in(lines); });
}

void RecipientExchange::take_in(const Text& lines) {
    if (lines.find_first_not_of(u" \t\r\n") == Text::npos) return;
    if (PastedRecipients one(recipients_, lines); one.line_count() == 1) {
        one.read(1);
        recipients_.RECIPIENT_COUNT_CAPTION();
        if (one.added() == 1) return;
    }
    frmPasted window(platform_, recipients_, lines);
    window.load();
    window.show_modal();
}

void RecipientExchange::take_in(const platform::Dropped& dropped) {
    if (!dropped.text.empty()) take_in(dropped.text);
    for (const Text& file : dropped.files) take_in_file(file);
}

void RecipientExchange::take_in_chosen_file() {
    const auto path = platform_.desktop.ask_for_file(
        {.title = u"받는사람 가져오기",
         .filter = u"받는사람 목록(*.csv;*.txt;*.tsv)|*.csv;*.txt;*.tsv|모든 파일(*.*)|*.*"});
    if (path) take_in_file(*path);
}

void RecipientExchange::take_in_file(const Text& path) {
    try {
        take_in(platform::text_of_any_encoding(platform_.files.read(path)));
    } catch (const platform::RuntimeError& error) {
        core::show_error(platform_.desktop, error, platform::BoxIcon::exclamation);
    }
}

void RecipientExchange::copy_selected() {
    const platform::ListView& list = recipients_.ListView1;
    Text lines;
    for (std::size_t row = 0; row < list.row_count(); ++row) {
        if (list.row(row).selected()) lines += line_of(list.row(row));
    }
    if (!lines.empty()) platform_.desktop.set_clipboard(lines);
}

}  // namespace compose
