#include "tests/screen/screen_checks.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QTreeView>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <vector>

namespace tests {

namespace {

std::string name_of(const QWidget& widget) { return widget.objectName().toStdString(); }

/// The room that a button's picture and text take, with the edge that the style draws around them.
int width_needed(const QAbstractButton& button) {
    if (qobject_cast<const QCheckBox*>(&button) || qobject_cast<const QRadioButton*>(&button))
        return button.sizeHint().width();
    constexpr int EDGES = 8;
    const int picture = button.icon().isNull() ? 0 : button.iconSize().width() + 4;
    return picture + button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width() + EDGES;
}

bool shows_its_text(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->text().isEmpty()) return true;
        if (label->wordWrap()) return label->height() >= label->heightForWidth(label->width());
        return label->width() >= label->sizeHint().width() && label->height() >= label->sizeHint().height();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->text().isEmpty() || button->width() >= width_needed(*button);
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
        return tabs->width() >= tabs->minimumSizeHint().width();
    }
    return true;
}

void expect_everything_readable(const QWidget& window) {
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->isWindow() || widget->objectName().isEmpty()) continue;
        EXPECT_TRUE(shows_its_text(*widget)) << name_of(*widget) << " cuts its text";
        // What scrolls may be larger than what holds it.
        const auto* area = qobject_cast<const QScrollArea*>(widget->parentWidget()->parentWidget());
        if (area != nullptr && area->widget() == widget) continue;
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
            << name_of(*widget) << " is cut off by what holds it";
    }
}

/// The widgets that Tab is to visit, from the first one on.
std::vector<QWidget*> tab_order(QWidget& window) {
    std::vector<QWidget*> order;
    for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
        if (next->isVisible() && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus) &&
            next->focusProxy() == nullptr && next->window() == &window)
            order.push_back(next);
    }
    return order;
}

/// The widgets that the key visits from that one on, until it comes to one for the second time. Within a date
/// it goes from field to field first.
std::vector<QWidget*> visited(QWidget& window, QWidget& first, Qt::Key key) {
    constexpr int MOST_FIELDS = 4;
    std::vector<QWidget*> visited;
    first.setFocus();
    for (QWidget* now = &first; std::ranges::find(visited, now) == visited.end();
         now = window.focusWidget()) {
        visited.push_back(now);
        for (int fields = 0; fields < MOST_FIELDS && window.focusWidget() == now; ++fields)
            QTest::keyClick(now, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    }
    return visited;
}

std::string names_of(const std::vector<QWidget*>& widgets) {
    std::string names;
    for (const QWidget* widget : widgets) names += name_of(*widget) + " ";
    return names;
}

/// Tab comes to every control once and to the first one again, Shift+Tab the other way round.
void expect_closed_ring(QWidget& window) {
    auto order = tab_order(window);
    if (order.empty()) return;
    EXPECT_EQ(names_of(visited(window, *order.front(), Qt::Key_Tab)), names_of(order));
    std::reverse(order.begin() + 1, order.end());
    EXPECT_EQ(names_of(visited(window, *order.front(), Qt::Key_Backtab)), names_of(order));
}

/// Tab goes down, or up to the head of the next column. A widget that the screen's order forgets comes before
/// all others, which is a jump upwards for the one after it.
void expect_tab_order_of_a_reader(QWidget& window) {
    const auto order = tab_order(window);
    for (std::size_t i = 1; i < order.size(); ++i) {
        const QRect from = place_in(window, *order[i - 1]);
        const QRect to = place_in(window, *order[i]);
        EXPECT_TRUE(to.bottom() >= from.top() || to.left() > from.right())
            << "from " << name_of(*order[i - 1]) << " up to " << name_of(*order[i]);
    }
}

/// What presses a widget or an action of the window at present.
struct Shortcut {
    QKeySequence keys;
    std::string of;
    QString tool_tip;
};

std::vector<Shortcut> shortcuts(const QWidget& window) {
    std::vector<Shortcut> found;
    for (const auto* action : window.findChildren<QAction*>()) {
        if (action->isEnabled() && action->isVisible())
            found.push_back({action->shortcut(), action->objectName().toStdString(), {}});
    }
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        if (button->isEnabled() && button->isVisible())
            found.push_back({button->shortcut(), name_of(*button), button->toolTip()});
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy() != nullptr)
            found.push_back({QKeySequence::mnemonic(label->text()), name_of(*label), {}});
    }
    std::erase_if(found, [](const Shortcut& shortcut) { return shortcut.keys.isEmpty(); });
    return found;
}

/// Two shortcuts alike would press nothing; a tool tip that names another key would mislead.
void expect_clear_shortcuts(const QWidget& window) {
    static const QRegularExpression KEYS(QStringLiteral("\\(((?:Ctrl|Alt|F\\d)[^)]*)\\)"));
    std::map<QString, std::string> owners;
    for (const Shortcut& shortcut : shortcuts(window)) {
        const QString keys = shortcut.keys.toString();
        const auto [other, is_new] = owners.emplace(keys, shortcut.of);
        EXPECT_TRUE(is_new) << keys.toStdString() << " of " << shortcut.of << " and " << other->second;
        QString told = KEYS.match(shortcut.tool_tip).captured(1);
        told.replace(QStringLiteral("Enter"), QStringLiteral("Return"));
        EXPECT_TRUE(told.isEmpty() || told == keys) << shortcut.of << " tells " << told.toStdString();
    }
}

bool has_label(const QWidget& field) {
    const auto labels = field.window()->findChildren<QLabel*>();
    return std::ranges::any_of(labels, [&](const QLabel* label) { return label->buddy() == &field; });
}

bool needs_tip(const QWidget& widget) {
    if (qobject_cast<const QSplitterHandle*>(&widget)) return widget.isVisible();
    // What the toolkit makes is unnamed or named by itself; a panel of the status bar that has no tip leads
    // nowhere.
    if (widget.objectName().isEmpty() || widget.objectName().startsWith(QStringLiteral("qt_"))) return false;
    if (qobject_cast<const QTabBar*>(widget.parentWidget()) ||
        qobject_cast<const QStatusBar*>(widget.parentWidget()))
        return false;
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        static const QRegularExpression ENDS_ITS_DIALOG(QStringLiteral("^(확인|취소|닫기)(\\(&.\\))?$"));
        return !ENDS_ITS_DIALOG.match(button->text()).hasMatch();
    }
    // Where several lines are written or read, a tip would lie on them.
    const bool is_field = qobject_cast<const QLineEdit*>(&widget) ||
                          qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QDateEdit*>(&widget);
    const bool is_list = qobject_cast<const QTabBar*>(&widget) || qobject_cast<const QTreeView*>(&widget);
    return is_list || (is_field && !has_label(widget));
}

/// What the user can press or choose says what it does, unless its label or its caption does.
void expect_tips(const QWidget& window) {
    for (const QWidget* widget : window.findChildren<QWidget*>())
        EXPECT_TRUE(!needs_tip(*widget) || !widget->toolTip().isEmpty()) << name_of(*widget) << " has no tip";
}

}  // namespace

void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCoreApplication::processEvents();
}

QRect place_in(const QWidget& window, const QWidget& widget) {
    return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

void expect_good_screen(QWidget& window) {
    settle();
    expect_clear_shortcuts(window);
    expect_tips(window);
    expect_everything_readable(window);
    expect_tab_order_of_a_reader(window);
    expect_closed_ring(window);
}

void expect_pictures(const QWidget& window) {
    const auto expect_picture = [](const QObject& object, const QIcon& icon) {
        EXPECT_TRUE(icon.isNull() || !icon.pixmap(16).isNull()) << object.objectName().toStdString();
    };
    for (const auto* button : window.findChildren<QAbstractButton*>())
        expect_picture(*button, button->icon());
    for (const auto* action : window.findChildren<QAction*>()) expect_picture(*action, action->icon());
}

void expect_no_captions(const QWidget& screen) {
    EXPECT_TRUE(screen.windowTitle().isEmpty());
    for (const QObject* object : screen.findChildren<QObject*>()) {
        if (object->objectName().startsWith(u'_')) continue;
        for (const char* caption : {"text", "title"}) {
            const bool is_field = object->inherits("QLineEdit") || object->inherits("QProgressBar") ||
                                  object->inherits("QAbstractSpinBox");
            EXPECT_TRUE(is_field || object->property(caption).toString().isEmpty())
                << object->objectName().toStdString();
        }
    }
}

}  // namespace tests
