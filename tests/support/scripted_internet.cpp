#include "tests/support/scripted_internet.h"

#include "platform/error.h"
#include "platform/text/text.h"

namespace tests {

using platform::ErrorNumber;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;

namespace {

/// The address with its scheme, which may be left out.
Text web_address(const Text& url) {
    Text address = platform::trim(url);
    if (address.find(u"://") == Text::npos) address = u"http://" + address;
    if (!address.starts_with(u"http://") && !address.starts_with(u"https://"))
        throw RuntimeError(ErrorNumber::protocol_not_supported);
    if (address.ends_with(u"://") || platform::contains(address, u" "))
        throw RuntimeError(ErrorNumber::request_not_completed);
    return address;
}

}  // namespace

class ScriptedInternet::ScriptedTransfer : public platform::Transfer {
  public:
    explicit ScriptedTransfer(ScriptedInternet& net) : net_(net) {}

    void execute(const Text& url) override {
        cancelled_ = false;
        rounds_ = 2;
        place_ = 0;
        net_.asked.push_back(url);
        const auto found = net_.answers.find(web_address(url));
        answer_ = found == net_.answers.end() ? ScriptedAnswer{} : found->second;
    }

    bool still_executing() const override {
        if (cancelled_ || rounds_ == 0) return false;
        --rounds_;
        net_.while_waiting();
        return !cancelled_;
    }

    Text header() const override {
        expect_answer();
        return platform::from_ascii(*answer_.header);
    }

    Text header(TextView name) const override {
        const Text whole = header() + Text(platform::CRLF);
        const Text start = Text(platform::CRLF) + Text(name) + u": ";
        const std::size_t at = platform::lower_case(whole).find(platform::lower_case(start));
        if (at == Text::npos) return {};
        const std::size_t begin = at + start.size();
        return whole.substr(begin, whole.find(platform::CRLF, begin) - begin);
    }

    std::string chunk(std::size_t size) override {
        expect_answer();
        net_.while_waiting();
        expect_answer();
        if (answer_.breaks && answer_.body.size() - place_ < size)
            throw RuntimeError(ErrorNumber::request_not_completed);
        std::string bytes = answer_.body.substr(place_, size);
        place_ += bytes.size();
        return bytes;
    }

    std::string open_url(const Text& url, std::size_t at_most) override {
        execute(url);
        return chunk(at_most);
    }

    void cancel() override { cancelled_ = true; }

  private:
    void expect_answer() const {
        if (cancelled_) throw RuntimeError(ErrorNumber::dialog_cancelled);
        if (!answer_.header) throw RuntimeError(ErrorNumber::request_not_completed);
    }

    ScriptedInternet& net_;
    ScriptedAnswer answer_;
    std::size_t place_ = 0;
    mutable int rounds_ = 0;
    bool cancelled_ = false;
};

std::unique_ptr<platform::Transfer> ScriptedInternet::make_transfer() {
    return std::make_unique<ScriptedTransfer>(*this);
}

}  // namespace tests
