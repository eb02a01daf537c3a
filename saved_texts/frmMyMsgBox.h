#pragma once

#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/controls/panels.h"
#include "platform/error.h"
#include "platform/ports/platform.h"
#include "saved_texts/list_search.h"

#include <functional>
#include <optional>

namespace saved_texts {

/// Sub-items of a row of `frmMyMsgBox::ListView2`.
inline constexpr int TEXT_LINE = 1;
inline constexpr int TEXT_SAVED = 2;
inline constexpr int TEXT_BODY = 3;
/// The name of its file, which no column shows.
inline constexpr int TEXT_FILE = 4;

/// The box of saved texts: categories, the texts of the selected one, and fields for a new text or for the
/// edit of the selected one.
///
/// Its handlers stand by subject: lists in listing, texts in text_operations, categories in
/// category_operations.
class frmMyMsgBox : public platform::Form {
  public:
    /// Takes a text and its title into the draft.
    using Apply = std::function<void(const platform::Text& text, const platform::Text& title)>;

    frmMyMsgBox(platform::Platform& platform, Apply apply);

    platform::ListView ListView1{*this, u"ListView1", {{.caption = u"분류명"}}};
    platform::CommandButton Command8{*this, u"Command8", u"새 분류 추가"};
    platform::CommandButton Command7{*this, u"Command7", u"분류명 수정"};
    platform::CommandButton Command9{*this, u"Command9", u"분류 삭제"};
    platform::TextBox SearchText{*this, u"SearchText"};
    /// How many texts there are, or how many of them hold the words.
    platform::Label FoundCount{*this, u"FoundCount"};
    platform::ListView ListView2{
        *this,
        u"ListView2",
        {{.caption = u"제목"}, {.caption = u"메시지내용"}, {.caption = u"저장일"}, {.caption = u"메시지"}}};
    platform::CommandButton Command10{*this, u"Command10", u"새로고침"};
    platform::Label Label1{*this, u"Label1", u"제목:"};
    platform::TextBox Text1{*this, u"Text1"};
    platform::Frame Frame1{*this, u"Frame1", u"메시지내용"};
    platform::PictureBox Picture1{*this, u"Picture1"};
    platform::TextBox txtText{*this, u"txtText"};
    platform::Label LenCaption{*this, u"LenCaption", u"0Bytes"};
    platform::CommandButton Command1{*this, u"Command1", u"신규 메시지 등록"};
    platform::CommandButton Command2{*this, u"Command2", u"메시지 수정"};
    platform::CommandButton Command3{*this, u"Command3", u"메시지 삭제"};
    platform::CommandButton Command5{*this, u"Command5", u"적용(&A)"};
    platform::CommandButton Command6{*this, u"Command6", u"확인(&O)"};
    platform::CommandButton Command4{*this, u"Command4", u"닫기(&C)"};

  protected:
    void Form_Load() override;
    void Form_Escape() override { unload(); }

  private:
    /// A text's file.
    struct Source {
        platform::Text category;
        platform::Text file;

        bool operator==(const Source&) const = default;
    };

    struct Fields {
        platform::Text title;
        platform::Text body;

        bool operator==(const Fields&) const = default;
    };

    void connect_lists();
    void connect_fields();

    // Lists.
    void CATEGORY_LIST_LOAD();
    void MESSAGE_LIST_LOAD(const platform::Text& category);
    void list_selected_category();
    void show_selected_text();
    void show_found();
    void go_to_found();
    void show_count();
    void show_chosen();
    std::optional<Source> source_of(std::size_t row) const;
    std::optional<platform::Text> selected_category() const;
    void select_category(std::size_t row);
    bool lists(const platform::Text& category);

    // Texts.
    void save_new_text();
    void save_edited_text();
    void remove_text();
    bool take_fields();
    bool is_saved(const platform::Text& category, const platform::Text& title) const;
    void empty_fields();
    Fields fields() const { return {Text1.text(), txtText.text()}; }
    void apply_to_draft();
    void apply_and_close();
    void apply_selected();

    // Categories.
    void rename_category();
    void add_category();
    void remove_category();
    platform::Text ask_for_category(platform::TextView title, platform::TextView first_line,
                                    const platform::Text& name);
    bool is_free_category(const platform::Text& name);

    /// Runs a handler's work on files and shows the box of an error that ends it.
    template <class Step>
    void show_failures_of(Step&& step) {
        try {
            step();
        } catch (const platform::RuntimeError& error) {
            show_failure(error);
        }
    }
    void show_failure(const platform::RuntimeError& error);

    platform::Platform& platform_;
    Apply apply_;
    /// Whose texts ListView2 shows; nothing when the last listing failed.
    std::optional<platform::Text> listed_category_;
    /// Where the text in the fields came from; nothing for a new one. The selected row may be another one.
    std::optional<Source> source_;
    /// What the fields held when it came into them.
    Fields taken_;
    ListSearch search_{ListView2};
};

}  // namespace saved_texts
