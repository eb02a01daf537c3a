// Every new recipient is first searched for in the sub-items of all rows; the alternative is to walk over the
// rows.

#include "bench/ratio.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "tests/support/test_platform.h"

#include <optional>

namespace {

using platform::ListView;
using platform::Text;

class ListForm : public platform::Form {
  public:
    explicit ListForm(platform::Desktop& desktop) : Form(desktop, u"ListForm") {}

    ListView list{*this, u"list", {{.caption = u"선택"}}, true};
};

/// Unsorted numbers, as they come from a card database.
Text number(int row) {
    Text digits = platform::decimal(10'000'000LL + (row * 7'919LL) % 89'999'999LL);
    return u"010" + digits;
}

void add(ListView& list, int row) { list.add_row(u"", {u"홍길동", number(row), u"", u"부장"}, true); }

bool walk(const ListView& list, const Text& beginning) {
    for (std::size_t row = 0; row < list.row_count(); ++row) {
        for (int column = 1; column <= list.row(row).sub_item_count(); ++column) {
            if (list.row(row).sub_item(column).starts_with(beginning)) return true;
        }
    }
    return false;
}

/// Time for a list of so many rows, each searched for before it is added.
void fill(benchmark::State& state) {
    tests::TestPlatform test;
    std::optional<ListForm> form;
    for (auto _ : state) {
        state.PauseTiming();
        form.emplace(test.desktop);
        state.ResumeTiming();
        for (int row = 0; row < state.range(0); ++row) {
            if (!form->list.find_in_sub_items(number(row))) add(form->list, row);
        }
        benchmark::DoNotOptimize(form->list.row_count());
    }
}

/// Time for the last hundred rows of 100,000.
void last_hundred(benchmark::State& state, bool by_walking) {
    tests::TestPlatform test;
    ListForm form(test.desktop);
    int row = 0;
    while (row < 100'000) {
        // As in the program: the search begins at the list's first row.
        benchmark::DoNotOptimize(form.list.find_in_sub_items(number(row)));
        add(form.list, row++);
    }
    for (auto _ : state) {
        for (int i = 0; i < 100; ++i, ++row) {
            const bool found = by_walking ? walk(form.list, number(row))
                                          : form.list.find_in_sub_items(number(row)).has_value();
            if (!found) add(form.list, row);
        }
    }
}

}  // namespace

BENCHMARK_CAPTURE(last_hundred, index, false)->Name("ours")->Iterations(20)->Repetitions(3);
BENCHMARK_CAPTURE(last_hundred, walk, true)->Name("walk")->Iterations(5)->Repetitions(3);
BENCHMARK(fill)->Name("fill_1000")->Arg(1'000)->Repetitions(5);
BENCHMARK(fill)->Name("fill_100000")->Arg(100'000)->Repetitions(3);

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    bench::TimeKeeper times;
    benchmark::RunSpecifiedBenchmarks(&times);
    const bool quick =
        bench::print_ratio("duplicate_search", times.time("walk") / times.time("ours"), "walk / ours", 100);
    const double growth = times.time("fill_100000") / 100 / times.time("fill_1000");
    const bool flat =
        bench::print_ratio_at_most("duplicate_search growth", growth, "cost a row at 100,000 / at 1,000", 2);
    return quick && flat ? 0 : 1;
}
