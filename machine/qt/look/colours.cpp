#include "machine/qt/look/colours.h"

#include <QRgb>
#include <algorithm>
#include <cmath>

namespace machine::qt {

namespace {

/// What Qt selects with where the desktop says nothing.
constexpr QRgb NO_DESKTOPS_HIGHLIGHT = qRgb(48, 140, 198);
constexpr double READABLE_DISABLED = 3.2;
constexpr double PALE = 0.82;

double luminance(const QColor& colour) {
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// As pale as can still be read on the ground.
QColor faded(const QColor& text, const QColor& ground) {
    double share = 0.6;
    while (share > 0 && contrast(between(text, ground, share), ground) < READABLE_DISABLED) share -= 0.05;
    return between(text, ground, std::max(share, 0.0));
}

}  // namespace

bool is_dark(const QPalette& palette) {
    return luminance(palette.color(QPalette::WindowText)) > luminance(palette.color(QPalette::Window));
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
    const QColor muted = between(text, ground, 0.42);
    const QColor line = between(text, ground, 0.78);
    if (is_dark(palette)) {
        return {accent, muted, QColor(0xFF, 0x8A, 0x80), QColor(0xF2, 0xB8, 0x4B), QColor(0x7B, 0xD3, 0x9A),
                line};
    }
    return {accent, muted, QColor(0xB9, 0x1C, 0x1C), QColor(0x92, 0x56, 0x00), QColor(0x1A, 0x75, 0x43),
            line};
}

namespace {

/// The program's own colours, for a desktop that has none.
void take_own_colours(QPalette& palette) {
    if (is_dark(palette)) {
        palette.setColor(QPalette::Highlight, QColor(0x78, 0xAE, 0xF5));
        palette.setColor(QPalette::Link, QColor(0x8A, 0xB8, 0xF8));
        return;
    }
    palette.setColor(QPalette::Highlight, QColor(0x1A, 0x5F, 0xB4));
    palette.setColor(QPalette::Link, QColor(0x1A, 0x5F, 0xB4));
    palette.setColor(QPalette::Window, QColor(0xF4, 0xF6, 0xF9));
    palette.setColor(QPalette::Button, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xF7, 0xF9, 0xFC));
}

}  // namespace

void make_readable(QPalette& palette) {
    if (palette.color(QPalette::Active, QPalette::Highlight).rgb() == NO_DESKTOPS_HIGHLIGHT)
        take_own_colours(palette);
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    const bool white_reads = contrast(Qt::white, highlight) >= contrast(Qt::black, highlight);
    palette.setColor(QPalette::HighlightedText, white_reads ? Qt::white : Qt::black);

    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, between(highlight, base, PALE));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText,
                     palette.color(QPalette::Active, QPalette::Text));

    const std::pair<QPalette::ColorRole, QPalette::ColorRole> texts[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button}};
    for (const auto& [text, ground] : texts) {
        palette.setColor(
            QPalette::Disabled, text,
            faded(palette.color(QPalette::Active, text), palette.color(QPalette::Active, ground)));
    }
    const Colours colours = colours_of(palette);
    palette.setColor(MUTED_TEXT, colours.muted);
    palette.setColor(FAILURE_TEXT, colours.failure);
    palette.setColor(WARNING_TEXT, colours.warning);
}

}  // namespace machine::qt
