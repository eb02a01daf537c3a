#include "machine/qt/look/desktop_settings.h"

#include "machine/qt/look/colours.h"
#include "machine/qt/look/korean.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFontDatabase>

namespace machine::qt {

namespace {

constexpr QLatin1StringView APPEARANCE("org.freedesktop.appearance");
constexpr QLatin1StringView INTERFACE("org.gnome.desktop.interface");

/// The desktops whose font is the one of those settings. Elsewhere the portal may tell that one too, as it
/// was installed, and the user has chosen another.
bool is_interface_of_desktop() {
    return qgetenv("XDG_CURRENT_DESKTOP").toUpper().split(':').contains("GNOME");
}

/// The font of a name such as "Noto Sans CJK KR Bold 11". What the toolkit does not know of it stays as it
/// is.
QFont font_of(const QString& name, const QFont& present) {
    constexpr double SMALLEST = 5;
    constexpr double LARGEST = 48;
    QFont font = present;
    QStringList words = name.split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty()) return font;
    const double size = words.takeLast().toDouble();
    if (size >= SMALLEST && size <= LARGEST) font.setPointSizeF(size);
    for (; !words.isEmpty(); words.removeLast()) {
        const QString family = words.join(u' ');
        if (!QFontDatabase::hasFamily(family)) continue;
        font.setFamily(family);
        break;
    }
    return font;
}

/// An X server tells the scale as the dots of an inch, which the toolkit hears.
bool toolkit_has_scale() { return QGuiApplication::platformName() == QLatin1String("xcb"); }

}  // namespace

DesktopSettings::DesktopSettings(const QDBusConnection& bus)
    : toolkit_has_colours_(!has_own_colours(QApplication::palette())),
      toolkit_has_font_(!is_interface_of_desktop()),
      font_of_toolkit_(QApplication::font()) {
    const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
    const QString portal = QStringLiteral("org.freedesktop.portal.Settings");
    // QtDBus looks the types of a slot up by their names.
    qRegisterMetaType<QDBusVariant>();
    // Naming the sender would wait for the bus, which would have to tell who that is at present.
    QDBusConnection(bus).connect(QString(), path, portal, QStringLiteral("SettingChanged"), this,
                                 SLOT(change(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"),
                                                           path, portal, QStringLiteral("ReadAll"));
    question.setArguments({QStringList{APPEARANCE, INTERFACE}});
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        take_all(answer->reply());
        answer->deleteLater();
    });
}

void DesktopSettings::take_all(const QDBusMessage& answer) {
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1String("a{sa{sv}}"))
        return;
    const auto groups = qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().constFirst());
    for (const auto& [group, settings] : groups.asKeyValueRange()) {
        for (const auto& [key, value] : settings.asKeyValueRange()) take(group, key, value);
    }
    show();
}

void DesktopSettings::change(const QString& group, const QString& key, const QDBusVariant& value) {
    take(group, key, value.variant());
    show();
}

void DesktopSettings::take(const QString& group, const QString& key, const QVariant& value) {
    const auto take_as = [&]<class Setting>(QLatin1StringView its_group, const char* its_key,
                                            Setting& setting) {
        if (group == its_group && key == QLatin1String(its_key) &&
            value.metaType() == QMetaType::fromType<Setting>()) {
            setting = value.value<Setting>();
        }
    };
    take_as(APPEARANCE, "color-scheme", colour_scheme_);
    take_as(APPEARANCE, "contrast", contrast_);
    take_as(INTERFACE, "font-name", font_name_);
    take_as(INTERFACE, "text-scaling-factor", text_scale_);
}

void DesktopSettings::show() {
    if (!toolkit_has_colours_) show_colours();
    if (!toolkit_has_font_) show_font();
}

void DesktopSettings::show_colours() const {
    constexpr uint PREFER_DARK = 1;
    constexpr uint HIGHER = 1;
    QApplication::setPalette(own_palette(colour_scheme_ == PREFER_DARK, contrast_ == HIGHER));
}

void DesktopSettings::show_font() const {
    constexpr double SMALLEST_SCALE = 0.5;
    constexpr double LARGEST_SCALE = 3;
    QFont font = font_of(font_name_, font_of_toolkit_);
    if (!toolkit_has_scale() && text_scale_ >= SMALLEST_SCALE && text_scale_ <= LARGEST_SCALE)
        font.setPointSizeF(font.pointSizeF() * text_scale_);
    use_font_with_hangul(font);
}

}  // namespace machine::qt
