#include "machine/qt/desktop/screens.h"

#include "ui_frmAbout.h"
#include "ui_frmAutoLogin.h"
#include "ui_frmMyMsgBox.h"
#include "ui_frmPasted.h"
#include "ui_frmPondiraReg.h"
#include "ui_frmSBox.h"
#include "ui_frmSendEndBox.h"
#include "ui_frmSendMan.h"
#include "ui_frmSet1.h"
#include "ui_frmUpdate.h"
#include "ui_frmUpdateStart.h"
#include "ui_frmWeb.h"
#include "ui_frmXTip.h"
#include "ui_frmZent.h"
#include "ui_frmZentLogin.h"
#include "ui_frmZentSend.h"

#include <stdexcept>

namespace machine::qt {

std::unique_ptr<QWidget> Screens::build(const platform::Text& form) const {
    const auto builder = builders_.find(form);
    if (builder == builders_.end())
        throw std::logic_error("no screen for the form " + platform::to_utf8(form));
    return builder->second();
}

Screens program_screens() {
    Screens screens;
    screens.add<Ui::frmZent, QMainWindow>(u"frmZent");
    screens.add<Ui::frmZentLogin, QDialog>(u"frmZentLogin");
    screens.add<Ui::frmAutoLogin, QDialog>(u"frmAutoLogin");
    screens.add<Ui::frmAbout, QDialog>(u"frmAbout");
    screens.add<Ui::frmWeb, QDialog>(u"frmWeb");
    screens.add<Ui::frmPondiraReg, QDialog>(u"frmPondiraReg");
    screens.add<Ui::frmSet1, QDialog>(u"frmSet1");
    screens.add<Ui::frmXTip, QDialog>(u"frmXTip");
    screens.add<Ui::frmPasted, QDialog>(u"frmPasted");
    screens.add<Ui::frmSBox, QDialog>(u"frmSBox");
    screens.add<Ui::frmZentSend, QDialog>(u"frmZentSend");
    screens.add<Ui::frmSendEndBox, QDialog>(u"frmSendEndBox");
    screens.add<Ui::frmSendMan, QDialog>(u"frmSendMan");
    screens.add<Ui::frmMyMsgBox, QDialog>(u"frmMyMsgBox");
    screens.add<Ui::frmUpdate, QDialog>(u"frmUpdate");
    screens.add<Ui::frmUpdateStart, QDialog>(u"frmUpdateStart");
    return screens;
}

}  // namespace machine::qt
