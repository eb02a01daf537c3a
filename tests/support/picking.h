#pragma once

#include "addressbook/frmSendMan.h"
#include "tests/support/main_window.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tests {

/// A folder row and a card of the database that `Picking` answers from.
struct Folder {
    int f_idx, p_idx;
    const char16_t* name;
};
struct Card {
    platform::Text name{}, title{}, company{}, cellphone{}, phone{}, fax{};
};

/// The main window with a card database behind the picker.
struct Picking : MainWindow {
    std::vector<Folder> folders{{2, 1, u"거래처"}, {3, 2, u"서울"}};
    /// How many cards each folder has; 1 if not given.
    std::map<int, int> counts;
    /// What every list and search finds.
    std::vector<Card> found;

    Picking() {
        form.load();
        cards.answer = [this](const platform::Text& statement) { return answer(statement); };
    }

    /// Opens the picker for a kind of message, lets the user do this in it, and closes it.
    void pick(const platform::Text& kind, std::function<void(addressbook::frmSendMan&)> act) {
        desktop.in_form<addressbook::frmSendMan>(u"frmSendMan", [act](addressbook::frmSendMan& picker) {
            act(picker);
            picker.escape_pressed();
        });
        addressbook::frmSendMan(platform, state, form.recipients, form.Timer1).ShowEnter(kind);
    }

    /// The last statement that was sent.
    std::string statement() const { return utf8(cards.statements.back()); }

    /// Name, number and title of every recipient.
    std::vector<std::string> recipients() const {
        std::vector<std::string> rows;
        for (std::size_t row = 0; row < form.recipients.ListView1.row_count(); ++row) {
            const platform::ListItem& item = form.recipients.ListView1.row(row);
            rows.push_back(utf8(item.sub_item(compose::RECIPIENT_NAME) + u"|" +
                                item.sub_item(compose::RECIPIENT_NUMBER) + u"|" +
                                item.sub_item(compose::RECIPIENT_TITLE)));
        }
        return rows;
    }

  private:
    ScriptedRows answer(const platform::Text& statement) const {
        if (platform::contains(statement, u"COUNT(*)")) {
            const int folder = std::stoi(utf8(statement.substr(statement.rfind(u'=') + 1)));
            return {{u"RNO"}, {{card_number(counts.contains(folder) ? counts.at(folder) : 1)}}};
        }
        ScriptedRows rows;
        if (!platform::contains(statement, u"namecard")) {
            rows.columns = {u"f_idx", u"p_idx", u"folder_name"};
            for (const Folder& folder : folders) {
                rows.rows.push_back(
                    {card_number(folder.f_idx), card_number(folder.p_idx), card_text(folder.name)});
            }
            return rows;
        }
        rows.columns = {u"FullName",       u"JobTitle",       u"CompanyName", u"Cellphone",
                        u"Company_phone1", u"Company_phone2", u"Company_fax1"};
        for (const Card& card : found) {
            rows.rows.push_back({card_text(card.name), card_text(card.title), card_text(card.company),
                                 card_text(card.cellphone), card_text(card.phone), card_text(card.phone),
                                 card_text(card.fax)});
        }
        return rows;
    }
};

}  // namespace tests
