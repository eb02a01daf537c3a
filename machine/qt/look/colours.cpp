#include "machine/qt/look/colours.h"

#include <QRgb>
#include <algorithm>
#include <cmath>

namespace machine::qt {

namespace {

/// What Qt selects with where the desktop says nothing, and what the program then takes instead.
constexpr QRgb NO_DESKTOPS_HIGHLIGHT = qRgb(48, 140, 198);
constexpr QRgb ACCENT_ON_LIGHT = qRgb(0x1A, 0x5F, 0xB4);
constexpr QRgb ACCENT_ON_DARK = qRgb(0x78, 0xAE, 0xF5);
constexpr double READABLE = 4.5;
constexpr double READABLE_DISABLED = 3.2;
constexpr double READABLE_DISABLED_IN_HIGH_CONTRAST = 7;
constexpr double PALE = 0.82;
constexpr double PALE_IN_HIGH_CONTRAST = 0.7;

double luminance(const QColor& colour) {
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// As pale as can still be read on the ground.
QColor faded(const QColor& text, const QColor& ground, double readable) {
    double share = 0.6;
    while (share > 0 && contrast(between(text, ground, share), ground) < readable) share -= 0.05;
    return between(text, ground, std::max(share, 0.0));
}

/// The colour, or as near to the text's as it takes to read it on the ground.
QColor legible(const QColor& colour, const QColor& text, const QColor& ground) {
    double share = 0;
    while (share < 1 && contrast(between(colour, text, share), ground) < READABLE) share += 0.05;
    return between(colour, text, share);
}

}  // namespace

bool is_dark(const QPalette& palette) {
    return luminance(palette.color(QPalette::WindowText)) > luminance(palette.color(QPalette::Window));
}

bool is_high_contrast(const QPalette& palette) {
    const QRgb text = palette.color(QPalette::Active, QPalette::WindowText).rgb();
    const QRgb ground = palette.color(QPalette::Active, QPalette::Window).rgb();
    const QRgb black = qRgb(0, 0, 0);
    const QRgb white = qRgb(255, 255, 255);
    return (text == black && ground == white) || (text == white && ground == black);
}

QColor between(const QColor& from, const QColor& to, double share) {
    const auto mixed = [share](int one, int other) { return int(std::lround(one + (other - one) * share)); };
    return QColor(mixed(from.red(), to.red()), mixed(from.green(), to.green()),
                  mixed(from.blue(), to.blue()));
}

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax(luminance(one), luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

Colours colours_of(const QPalette& palette) {
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    const bool high = is_high_contrast(palette);
    const QColor muted = between(text, ground, high ? 0.2 : 0.42);
    const QColor line = between(text, ground, high ? 0.3 : 0.78);
    const auto sign = [&](QRgb colour) { return between(QColor(colour), text, high ? 0.3 : 0.0); };
    if (is_dark(palette)) {
        return {accent,
                muted,
                sign(qRgb(0xFF, 0x8A, 0x80)),
                sign(qRgb(0xF2, 0xB8, 0x4B)),
                sign(qRgb(0x7B, 0xD3, 0x9A)),
                line};
    }
    return {accent,
            muted,
            sign(qRgb(0xB9, 0x1C, 0x1C)),
            sign(qRgb(0x92, 0x56, 0x00)),
            sign(qRgb(0x1A, 0x75, 0x43)),
            line};
}

namespace {

/// The program's own colours, for a desktop that has none.
void take_own_colours(QPalette& palette) {
    if (is_dark(palette)) {
        palette.setColor(QPalette::Highlight, QColor(ACCENT_ON_DARK));
        palette.setColor(QPalette::Link, QColor(0x8A, 0xB8, 0xF8));
        return;
    }
    palette.setColor(QPalette::Highlight, QColor(ACCENT_ON_LIGHT));
    palette.setColor(QPalette::Link, QColor(ACCENT_ON_LIGHT));
    if (is_high_contrast(palette)) return;
    palette.setColor(QPalette::Window, QColor(0xF4, 0xF6, 0xF9));
    palette.setColor(QPalette::Button, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xF7, 0xF9, 0xFC));
}

/// Every role that a widget may draw with: one that is left out would come from the toolkit's light colours.
QPalette plain_palette(const QColor& text, const QColor& window, const QColor& base, const QColor& button) {
    QPalette palette(button, window);
    const std::pair<QPalette::ColorRole, QColor> colours[] = {
        {QPalette::WindowText, text},    {QPalette::Text, text},
        {QPalette::ButtonText, text},    {QPalette::ToolTipText, text},
        {QPalette::Base, base},          {QPalette::AlternateBase, window},
        {QPalette::ToolTipBase, button}, {QPalette::Highlight, QColor(NO_DESKTOPS_HIGHLIGHT)}};
    for (const auto& [role, colour] : colours) palette.setColor(role, colour);
    return palette;
}

}  // namespace

void make_readable(QPalette& palette) {
    if (palette.color(QPalette::Active, QPalette::Highlight).rgb() == NO_DESKTOPS_HIGHLIGHT)
        take_own_colours(palette);
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    const bool white_reads = contrast(Qt::white, highlight) >= contrast(Qt::black, highlight);
    palette.setColor(QPalette::HighlightedText, white_reads ? Qt::white : Qt::black);

    palette.setColor(QPalette::Link, legible(palette.color(QPalette::Active, QPalette::Link),
                                             palette.color(QPalette::Active, QPalette::WindowText),
                                             palette.color(QPalette::Active, QPalette::Window)));
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const double pale = is_high_contrast(palette) ? PALE_IN_HIGH_CONTRAST : PALE;
    palette.setColor(QPalette::Inactive, QPalette::Highlight, between(highlight, base, pale));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText,
                     palette.color(QPalette::Active, QPalette::Text));

    const std::pair<QPalette::ColorRole, QPalette::ColorRole> texts[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button}};
    const double readable =
        is_high_contrast(palette) ? READABLE_DISABLED_IN_HIGH_CONTRAST : READABLE_DISABLED;
    for (const auto& [text, ground] : texts) {
        palette.setColor(
            QPalette::Disabled, text,
            faded(palette.color(QPalette::Active, text), palette.color(QPalette::Active, ground), readable));
    }
    const Colours colours = colours_of(palette);
    palette.setColor(MUTED_TEXT, colours.muted);
    palette.setColor(FAILURE_TEXT, colours.failure);
    palette.setColor(WARNING_TEXT, colours.warning);
}

bool has_own_colours(const QPalette& palette) {
    const QRgb accent = palette.color(QPalette::Active, QPalette::Highlight).rgb();
    return accent == ACCENT_ON_LIGHT || accent == ACCENT_ON_DARK;
}

QPalette own_palette(bool dark, bool high_contrast) {
    if (!dark && !high_contrast) return {};
    QPalette palette;
    if (!dark) {
        palette = plain_palette(Qt::black, Qt::white, Qt::white, Qt::white);
    } else if (high_contrast) {
        palette = plain_palette(Qt::white, Qt::black, Qt::black, Qt::black);
    } else {
        palette = plain_palette(QColor(0xE8, 0xEA, 0xED), QColor(0x25, 0x28, 0x2D), QColor(0x1C, 0x1E, 0x22),
                                QColor(0x31, 0x35, 0x3B));
    }
    make_readable(palette);
    return palette;
}

}  // namespace machine::qt
