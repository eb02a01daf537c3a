// The recipients are rows of a model that the list widget reads in place; the alternative copies each into an
// item of a QTreeWidget. What is measured is the cost of showing: the time from present rows to their first
// painting, and the memory.

#include "bench/ratio.h"
#include "machine/qt/desktop/qt_desktop.h"
#include "machine/qt/typing/conversion.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "tests/support/memory_files.h"

#include <QApplication>
#include <QDialog>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <chrono>
#include <malloc.h>

namespace {

using platform::ListView;

constexpr int ROWS = 100'000;

class ListForm : public platform::Form {
  public:
    explicit ListForm(platform::Desktop& desktop) : Form(desktop, u"ListForm") {}

    ListView list{*this,
                  u"list",
                  {{.caption = u"선택"},
                   {.caption = u"이름"},
                   {.caption = u"문자보낼번호"},
                   {.caption = u"상태"},
                   {.caption = u"직위"}},
                  true};
};

struct ListScreen {
    void setupUi(QDialog* window) {
        auto* list = new QTreeView(window);
        list->setObjectName(QStringLiteral("list"));
        list->setUniformRowHeights(true);
        (new QVBoxLayout(window))->addWidget(list);
        window->resize(600, 400);
    }
};

struct Cost {
    double milliseconds;
    double bytes;
};

template <class Show>
Cost measure(Show show) {
    const auto used = mallinfo2().uordblks + mallinfo2().hblkhd;
    const auto start = std::chrono::steady_clock::now();
    show();
    QApplication::processEvents();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return {time.count(), static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd - used)};
}

Cost show_in_place(platform::Desktop& desktop, ListForm& form) {
    desktop.prepare(form);
    return measure([&] { form.show(); });
}

Cost show_copied(const ListView& rows) {
    QDialog window;
    QTreeWidget* tree = nullptr;
    return measure([&] {
        tree = new QTreeWidget(&window);
        tree->setUniformRowHeights(true);
        tree->setColumnCount(rows.column_count());
        (new QVBoxLayout(&window))->addWidget(tree);
        window.resize(600, 400);
        QList<QTreeWidgetItem*> items;
        for (std::size_t row = 0; row < rows.row_count(); ++row) {
            auto* item = new QTreeWidgetItem;
            item->setCheckState(0, rows.row(row).checked() ? Qt::Checked : Qt::Unchecked);
            for (int column = 1; column <= rows.row(row).sub_item_count(); ++column) {
                item->setText(column, machine::qt::shown_text(rows.row(row).sub_item(column)));
            }
            items.append(item);
        }
        tree->addTopLevelItems(items);
        window.show();
    });
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication qt(argc, argv);
    machine::qt::Screens screens;
    screens.add<ListScreen, QDialog>(u"ListForm");
    tests::MemoryFiles files;
    machine::qt::QtDesktop desktop(screens, files);
    ListForm form(desktop);
    for (int row = 0; row < ROWS; ++row) {
        const platform::Text number = u"010" + platform::decimal(10'000'000 + row);
        form.list.add_row(u"", {u"홍길동", number, u"등록성공", u"부장"}, true);
    }
    const Cost copied = show_copied(form.list);
    const Cost in_place = show_in_place(desktop, form);
    std::printf("in place %.1f ms %.2f MB, QTreeWidget %.1f ms %.2f MB\n", in_place.milliseconds,
                in_place.bytes / 1e6, copied.milliseconds, copied.bytes / 1e6);
    const bool quick = bench::print_ratio("list_view time", copied.milliseconds / in_place.milliseconds,
                                          "QTreeWidget / ours", 10);
    const bool small =
        bench::print_ratio("list_view memory", copied.bytes / in_place.bytes, "QTreeWidget / ours", 3);
    form.unload();
    return quick && small ? 0 : 1;
}
