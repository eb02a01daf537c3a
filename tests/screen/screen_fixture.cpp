#include "tests/screen/screen_fixture.h"

#include "ui_frmAsk.h"
#include "ui_frmSample.h"

#include <QAbstractButton>
#include <QDialog>
#include <QMainWindow>

namespace tests {

machine::qt::Screens sample_screens() {
    machine::qt::Screens screens;
    screens.add<Ui::frmSample, QMainWindow>(u"frmSample");
    screens.add<Ui::frmAsk, QDialog>(u"frmAsk");
    return screens;
}

bool BoxPlayer::eventFilter(QObject* object, QEvent* event) {
    if (auto* box = qobject_cast<QMessageBox*>(object); box != nullptr && event->type() == QEvent::Show) {
        QMetaObject::invokeMethod(
            box, [this, box] { play(*box); }, Qt::QueuedConnection);
    }
    return false;
}

void BoxPlayer::play(QMessageBox& box) {
    asked.push_back(box.text());
    meanwhile();
    if (!box.isVisible()) return;
    if (answers.empty()) {
        ADD_FAILURE() << "an unexpected box: " << box.text().toStdString();
        return box.reject();
    }
    const auto answer = answers.front();
    answers.pop_front();
    if (answer == QMessageBox::NoButton) return box.reject();
    box.button(answer)->click();
}

}  // namespace tests
