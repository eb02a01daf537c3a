#include "trials/program.h"

#include "trials/moments.h"

#include <filesystem>
#include <fstream>

namespace trials {

using platform::Text;

namespace {

template <class Call>
std::int32_t between_moments(Call call) {
    killer.moment();
    const std::int32_t result = call();
    killer.moment();
    return result;
}

}  // namespace

/// A library that hangs is given up as soon as it says so, not after minutes.
TriedCarrier::TriedCarrier()
    : HostedCarrierLibrary(CARRIER_HOST, [this] {
          set_patience([](std::chrono::milliseconds) { return !std::filesystem::remove("hangs"); });
      }) {}

std::int32_t TriedCarrier::fn_x_bind(std::int32_t one, std::string& user, std::string& password,
                                     std::string& domain, std::int32_t five, Notify six, std::int32_t seven) {
    ++binds;
    return between_moments(
        [&] { return HostedCarrierLibrary::fn_x_bind(one, user, password, domain, five, six, seven); });
}
std::int32_t TriedCarrier::fn_x_unbind(std::string& user, std::string& password) {
    return between_moments([&] { return HostedCarrierLibrary::fn_x_unbind(user, password); });
}
std::int32_t TriedCarrier::fn_x_money_status(std::string& user, std::string& domain, std::string& number,
                                             std::string& address, MoneyStatus& status) {
    return between_moments(
        [&] { return HostedCarrierLibrary::fn_x_money_status(user, domain, number, address, status); });
}
std::int32_t TriedCarrier::fn_x_submit(const Submit& submit) {
    return between_moments([&] { return HostedCarrierLibrary::fn_x_submit(submit); });
}

Program::Program() : store(std::filesystem::current_path().string(), "/opt/zent") {
    form.load();
    state.session.gLoggedIn = true;
    state.session.gLoginUserId = u"demo";
    state.session.gLoginPassword = u"demo1234";
    state.session.gInfoCallback = u"021234567";
    form.choose(compose::MessageKind::text);
    desktop.any_box = platform::BoxAnswer::yes;
    keeper.start();
}

void Program::write(const Job& job) {
    Text text = job.personal ? u"{이름}" : u"";
    for (int piece = 1; piece <= job.pieces; ++piece)
        text += Text(piece < job.pieces ? 80 : 40, static_cast<char16_t>(u'a' + piece));
    form.text.Check1.set_checked(job.personal);
    form.text.mText1.set_text(text);
    for (int i = 1; i <= job.recipients; ++i)
        form.recipients.add(u"n" + platform::decimal(i), u"010" + platform::decimal(10'000'000 + i), {});
    clock.run_for(3000);
}

void Program::stop_at_pause(std::size_t n) {
    desktop.in_form<send::frmZentSend>(u"frmZentSend", [this, n](send::frmZentSend& job) {
        clock.during_pause = [this, n, &job] {
            if (clock.pauses.size() == n) job.Command1.Click.raise();
        };
    });
}

void Program::send_all() {
    for (int tries = 0; tries < 4 && form.recipients.ListView1.checked_count() > 0; ++tries) {
        desktop.in_form<send::frmSBox>(u"frmSBox", [](send::frmSBox& box) { box.Command1.Click.raise(); });
        if (!report_awaited) {
            desktop.in_form<send::frmSendEndBox>(u"frmSendEndBox", [this](send::frmSendEndBox& box) {
                report_awaited = false;
                box.Command2.Click.raise();
            });
        }
        report_awaited = true;
        form.Command1.Click.raise();
    }
}

void Program::leave_rows() const {
    std::ofstream rows("rows");
    const platform::ListView& list = form.recipients.ListView1;
    for (std::size_t row = 0; row < list.row_count(); ++row)
        rows << tests::utf8(list.row(row).sub_item(compose::RECIPIENT_NUMBER)) << ' '
             << (list.row(row).sub_item(compose::RECIPIENT_STATUS) == gateway::NO_ANSWER) << '\n';
}

}  // namespace trials
