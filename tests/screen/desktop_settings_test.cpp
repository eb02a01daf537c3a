// The desktop's settings, told by a portal on a bus of the test's own.

#include "machine/qt/look/desktop_settings.h"

#include "machine/qt/look/colours.h"
#include "tests/screen/screen_checks.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QPalette>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

namespace tests {
namespace {

using Groups = QMap<QString, QVariantMap>;

const QString PATH = QStringLiteral("/org/freedesktop/portal/desktop");
const QString APPEARANCE = QStringLiteral("org.freedesktop.appearance");
const QString INTERFACE = QStringLiteral("org.gnome.desktop.interface");

/// A bus that ends with this object.
class Bus {
  public:
    Bus() {
        server_.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                      QStringLiteral("--print-address")});
        if (!server_.waitForReadyRead()) throw std::runtime_error("dbus-daemon does not start");
        address_ = QString::fromUtf8(server_.readLine()).trimmed();
    }
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;
    ~Bus() {
        for (const QString& name : names_) QDBusConnection::disconnectFromBus(name);
        server_.kill();
        server_.waitForFinished();
    }

    QDBusConnection connect(const QString& name) {
        names_ << name;
        return QDBusConnection::connectToBus(address_, name);
    }

  private:
    QProcess server_;
    QString address_;
    QStringList names_;
};

/// A double of the desktop's portal.
class Portal : public QDBusVirtualObject {
  public:
    explicit Portal(QDBusConnection bus) : bus_(std::move(bus)) {
        qDBusRegisterMetaType<Groups>();
        bus_.registerVirtualObject(PATH, this);
        bus_.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    void tell(const QString& group, const char* key, const QVariant& value) {
        QDBusMessage signal = QDBusMessage::createSignal(
            PATH, QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
        signal.setArguments({group, QLatin1String(key), QVariant::fromValue(QDBusVariant(value))});
        bus_.send(signal);
    }

    bool was_asked() {
        return QTest::qWaitFor([this] { return std::exchange(asked_, false); });
    }

    Groups settings;
    /// What it says instead of them, if anything.
    QVariant nonsense;

  protected:
    bool handleMessage(const QDBusMessage& question, const QDBusConnection&) override {
        bus_.send(question.createReply(nonsense.isValid() ? nonsense : QVariant::fromValue(settings)));
        return asked_ = true;
    }
    QString introspect(const QString&) const override { return {}; }

  private:
    QDBusConnection bus_;
    bool asked_ = false;
};

struct DesktopSettings : testing::Test {
    ~DesktopSettings() override {
        QApplication::setPalette(QPalette());
        QApplication::setFont(font);
        qunsetenv("XDG_CURRENT_DESKTOP");
    }

    static bool shows(bool dark, bool high_contrast) {
        return QTest::qWaitFor([=] {
            const QPalette palette = QApplication::palette();
            return machine::qt::is_dark(palette) == dark &&
                   machine::qt::is_high_contrast(palette) == high_contrast;
        });
    }
    /// Everything sent before has been heard when an answer to this has come.
    void let_all_arrive() {
        portal.tell(APPEARANCE, "color-scheme", 0U);
        portal.tell(APPEARANCE, "contrast", 1U);
        EXPECT_TRUE(shows(false, true));
    }

    const QFont font = QApplication::font();
    Bus bus;
    Portal portal{bus.connect(QStringLiteral("portal"))};
    QDBusConnection program = bus.connect(QStringLiteral("program"));
};

TEST_F(DesktopSettings, GiveTheirColoursAtTheStartAndWhileTheProgramRuns) {
    const QPalette light = QApplication::palette();
    portal.settings[APPEARANCE][QStringLiteral("color-scheme")] = 1U;
    const machine::qt::DesktopSettings settings(program);
    EXPECT_EQ(QApplication::palette(), light) << "the start waits for no answer";
    EXPECT_TRUE(shows(true, false));
    portal.tell(APPEARANCE, "contrast", 1U);
    EXPECT_TRUE(shows(true, true));
    portal.tell(APPEARANCE, "color-scheme", 2U);
    EXPECT_TRUE(shows(false, true));
    portal.tell(APPEARANCE, "contrast", 0U);
    EXPECT_TRUE(shows(false, false));
    EXPECT_EQ(QApplication::palette(), light);
}

TEST_F(DesktopSettings, LeaveTheColoursOfADesktopThatTheToolkitKnows) {
    QPalette users = machine::qt::own_palette(true, true);
    users.setColor(QPalette::Highlight, Qt::darkGreen);
    QApplication::setPalette(users);
    const machine::qt::DesktopSettings settings(program);
    ASSERT_TRUE(portal.was_asked());
    settle();
    EXPECT_EQ(QApplication::palette(), users);
}

TEST_F(DesktopSettings, GiveTheirFontAndItsScaleWhereTheyAreTheDesktopsOwn) {
    portal.settings[INTERFACE][QStringLiteral("font-name")] = QStringLiteral("No Such Family Bold 14");
    for (const char* desktop : {"XFCE", "ubuntu:GNOME"}) {
        qputenv("XDG_CURRENT_DESKTOP", desktop);
        const machine::qt::DesktopSettings settings(program);
        ASSERT_TRUE(portal.was_asked());
        let_all_arrive();
        const bool gnome = QLatin1String(desktop) != QLatin1String("XFCE");
        EXPECT_EQ(QApplication::font().pointSizeF(), gnome ? 14 : font.pointSizeF());
        portal.tell(INTERFACE, "text-scaling-factor", 1.5);
        portal.tell(APPEARANCE, "contrast", 0U);
        EXPECT_TRUE(shows(false, false));
        EXPECT_EQ(QApplication::font().pointSizeF(), gnome ? 21 : font.pointSizeF());
    }
}

TEST_F(DesktopSettings, ThatAreSomethingElseChangeNothing) {
    qputenv("XDG_CURRENT_DESKTOP", "GNOME");
    portal.nonsense = QStringLiteral("dark");
    const machine::qt::DesktopSettings settings(program);
    ASSERT_TRUE(portal.was_asked());
    const std::tuple<QString, const char*, QVariant> wrong[] = {
        {APPEARANCE, "color-scheme", QStringLiteral("1")},
        {APPEARANCE, "color-scheme", 77U},
        {APPEARANCE, "contrast", 1.0},
        // Has the key of another group, as some desktops have.
        {INTERFACE, "color-scheme", 1U},
        {INTERFACE, "font-name", QStringLiteral("Sans 4000000000")},
        {INTERFACE, "font-name", QString()},
        {INTERFACE, "font-name", 12U},
        {INTERFACE, "text-scaling-factor", qQNaN()},
        {INTERFACE, "text-scaling-factor", -1.0},
        {INTERFACE, "text-scaling-factor", QStringList{QStringLiteral("2")}}};
    for (const auto& [group, key, value] : wrong) {
        portal.tell(group, key, value);
        EXPECT_FALSE(machine::qt::is_dark(QApplication::palette())) << key;
    }
    let_all_arrive();
    EXPECT_EQ(QApplication::font().pointSizeF(), font.pointSizeF());
}

}  // namespace
}  // namespace tests
