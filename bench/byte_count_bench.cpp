// Every key in the message field counts the text's bytes; the alternative is to convert it and to count the
// bytes of the result.

#include "bench/ratio.h"
#include "platform/text/cp949.h"

#include <iconv.h>
#include <vector>

namespace {

/// 1 MB of code units in the mixture of a Korean message.
const platform::Text& message() {
    static const platform::Text text = [] {
        constexpr platform::TextView PIECE =
            u"[폰디라] 홍길동 과장님, 7월 5일(토) 오후 3:00 회의 안내드립니다. ※ 02-000-0000\r\n";
        platform::Text mixed;
        while (mixed.size() < 1'000'000 / sizeof(char16_t)) mixed += PIECE;
        return mixed;
    }();
    return text;
}

void ours(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(platform::cp949_length(message()));
}

void with_iconv(benchmark::State& state) {
    const iconv_t converter = iconv_open("CP949//TRANSLIT", "UTF-16LE");
    std::vector<char> bytes(message().size() * 2);
    for (auto _ : state) {
        auto* in = const_cast<char*>(reinterpret_cast<const char*>(message().data()));
        std::size_t in_left = message().size() * sizeof(char16_t);
        char* out = bytes.data();
        std::size_t out_left = bytes.size();
        if (iconv(converter, &in, &in_left, &out, &out_left) == static_cast<std::size_t>(-1)) {
            state.SkipWithError("the text does not convert");
            break;
        }
        benchmark::DoNotOptimize(bytes.size() - out_left);
    }
    iconv_close(converter);
}

}  // namespace

BENCHMARK(ours)->Repetitions(5);
BENCHMARK(with_iconv)->Name("iconv")->Repetitions(5);

int main(int argc, char** argv) { return bench::run(argc, argv, "byte_count", "iconv", 5); }
