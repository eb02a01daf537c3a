#include "compose/characters/recent.h"

#include "core/settings.h"

#include <algorithm>

namespace compose {

using platform::Text;

namespace {

constexpr std::size_t MOST = 6;
/// Stands in none of the characters.
constexpr char16_t SEPARATOR = u'|';

}  // namespace

RecentCharacters::RecentCharacters(platform::Form& form, platform::Platform& platform,
                                   platform::Control& container,
                                   const std::function<void(const Text&)>& insert)
    : Room(form), platform_(platform) {
    for (std::size_t i = 0; i < MOST; ++i) {
        platform::CommandButton& button =
            Recent.emplace_back(form, u"Recent_" + platform::decimal(i), Text());
        button.set_container(container);
        button.hide();
        button.set_tool_tip(u"최근에 쓴 글자를 내용에 넣습니다.");
        button.Click.connect([insert, &button] { insert(button.caption()); });
    }
}

void RecentCharacters::load() {
    if (loaded_) return;
    loaded_ = true;
    const Text saved = core::read_setting(platform_, core::settings::RECENT_CHARACTERS);
    for (const platform::TextView character : platform::split(saved, SEPARATOR))
        if (!character.empty() && characters_.size() < MOST) characters_.emplace_back(character);
    show();
}

void RecentCharacters::add(const Text& character) {
    load();
    if (std::ranges::find(characters_, character) != characters_.end()) return;
    characters_.insert(characters_.begin(), character);
    if (characters_.size() > MOST) characters_.pop_back();
    show();
    Text saved;
    for (const Text& kept : characters_) saved += (saved.empty() ? Text() : Text(1, SEPARATOR)) + kept;
    core::write_setting(platform_, core::settings::RECENT_CHARACTERS, saved);
}

void RecentCharacters::show() {
    for (std::size_t i = 0; i < characters_.size(); ++i) {
        Recent[i].set_caption(characters_[i]);
        Recent[i].show();
    }
}

}  // namespace compose
