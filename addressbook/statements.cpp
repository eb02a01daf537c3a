#include "addressbook/statements.h"

namespace addressbook::statements {

using platform::Text;
using platform::TextView;

namespace {

constexpr TextView COLUMNS =
    u"SELECT "
    u"a.f_idx,a.p_idx,i_idx,FullName,CompanyName,Department,JobTitle,Company_addr,Company_zipcode,Cellphone,"
    u"Beeper,Email,Email2,";
constexpr TextView COLUMNS_OF_LISTS =
    u"Company_phone1,Company_phone2,Company_fax1,Webpage,Memo_,b.folder_name FROM ";
constexpr TextView COLUMNS_OF_FOLDER =
    u"Company_phone1,Company_phone2,Company_fax1,Webpage,Memo_,Fname,Fname_photo,b.folder_name FROM ";
constexpr TextView CARDS = u"[tbl_namecard] a";
constexpr TextView FOLDER_NAME = u" left outer JOIN [tbl_folder] b on a.f_idx=b.f_idx Where ";
constexpr TextView IN_ORDER = u" ORDER BY [a.i_idx] asc";

/// The columns and the table with the folder's name beside each card, up to the condition.
Text lists(TextView cards) {
    Text text(COLUMNS);
    text += COLUMNS_OF_LISTS;
    text += cards;
    text += FOLDER_NAME;
    return text;
}

Text filtered(TextView table, TextView filter) {
    return u"(select * from " + Text(table) + u" where " + Text(filter) + u") a";
}

}  // namespace

Text folders() { return u"SELECT folder_name,f_idx,p_idx FROM [tbl_folder] order by f_idx asc"; }

Text card_count(TextView folder) {
    return u"SELECT COUNT(*) as RNO FROM [tbl_namecard] WHERE [f_idx]=" + Text(folder);
}

Text folders_outside_trash() {
    return u"SELECT f_idx FROM tbl_folder where f_idx <> 1000 and p_idx <> 1000 order by f_idx";
}

Text folder_filter(const std::vector<Text>& folders) {
    Text filter;
    for (const Text& folder : folders) {
        if (!filter.empty()) filter += u" or ";
        filter += u"f_idx=" + folder;
    }
    return platform::trim(filter);
}

Text cards_of_folder(TextView folder) {
    return Text(COLUMNS) + Text(COLUMNS_OF_FOLDER) + Text(CARDS) + Text(FOLDER_NAME) + u"[a.f_idx]=" +
           Text(folder) + u" AND [a.p_idx]=0" + Text(IN_ORDER);
}

Text all_cards(TextView filter) {
    return lists(filter.empty() ? Text(CARDS) : filtered(u"[tbl_namecard]", filter)) + u"[a.p_idx]=0" +
           Text(IN_ORDER);
}

Text matching_cards(TextView filter, TextView match) {
    return lists(filter.empty() ? Text(CARDS) : filtered(u"tbl_namecard", filter)) + Text(match) +
           Text(IN_ORDER);
}

Text match_clause(TextView mode, const Text& text) {
    // Deliberately unquoted: users search with the database's wild cards, and an apostrophe finds nothing.
    Text pattern = text;
    if (mode == BEGINS_WITH) {
        pattern = text + u"%";
    } else if (mode == CONTAINS) {
        pattern = u"%" + text + u"%";
    } else if (mode != EQUALS) {
        return {};
    }
    return u"([a.CompanyName] LIKE '" + pattern + u"' OR [a.FullName] LIKE '" + pattern +
           u"') AND [a.p_idx]=0";
}

}  // namespace addressbook::statements
