#include "machine/qt/modules/web/page_dialogs.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>

namespace machine::qt {

namespace {

/// About as much as fits on a screen.
constexpr int LONGEST_TEXT = 1000;

}  // namespace

void PageDialogs::alert(QWidget* parent, const QUrl& origin, const QString& text) {
    ask(parent, origin, text, false);
}

bool PageDialogs::confirm(QWidget* parent, const QUrl& origin, const QString& text) {
    return ask(parent, origin, text, true);
}

bool PageDialogs::ask(QWidget* parent, const QUrl& origin, const QString& text, bool is_question) {
    if (unwanted_) return false;
    QMessageBox box(parent);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setWindowTitle(QStringLiteral("웹 페이지"));
    box.setTextFormat(Qt::PlainText);
    box.setText(QStringLiteral("%1의 메시지:\n\n").arg(origin.host()) + text.left(LONGEST_TEXT));
    box.setIcon(is_question ? QMessageBox::Question : QMessageBox::Information);
    const QAbstractButton* yes = box.addButton(QStringLiteral("확인"), QMessageBox::AcceptRole);
    if (is_question) box.setEscapeButton(box.addButton(QStringLiteral("취소"), QMessageBox::RejectRole));
    if (asked_before_) {
        box.setCheckBox(new QCheckBox(QStringLiteral("이 페이지의 메시지를 더 이상 보지 않음(&D)"), &box));
    }
    asked_before_ = true;
    box.exec();
    unwanted_ = box.checkBox() != nullptr && box.checkBox()->isChecked();
    return box.clickedButton() == yes;
}

}  // namespace machine::qt
