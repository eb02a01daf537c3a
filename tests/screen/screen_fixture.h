#pragma once

#include "machine/qt/desktop/qt_desktop.h"
#include "tests/screen/sample_forms.h"
#include "tests/support/memory_files.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QMessageBox>
#include <QTest>
#include <QWidget>
#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>

namespace tests {

/// The screens of the sample forms.
machine::qt::Screens sample_screens();

/// Answers message boxes in the user's place.
class BoxPlayer : public QObject {
  public:
    BoxPlayer() { qApp->installEventFilter(this); }

    /// The buttons to press in the next boxes, in order. A further box fails the test.
    std::deque<QMessageBox::StandardButton> answers;
    /// Runs while a box is open, and may answer it.
    std::function<void()> meanwhile = [] {};
    std::vector<QString> asked;

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void play(QMessageBox& box);
};

/// A window on the offscreen desktop, found and driven as a user would.
class DeskTest : public testing::Test {
  protected:
    /// Handles everything that waits in the event loop.
    static void settle() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    template <class Widget = QWidget>
    static Widget& find(const char* name) {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* found = window->findChild<Widget*>(QString::fromLatin1(name))) return *found;
        }
        throw std::runtime_error(name);
    }

    /// A step of an input method in the field that has the focus: what it commits, and what is unfinished
    /// afterwards.
    static void compose(const QString& commit, const QString& unfinished) {
        QWidget* field = QApplication::focusWidget();
        if (field == nullptr) throw std::logic_error("nothing has the focus");
        QInputMethodEvent event(unfinished, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(field, &event);
    }
};

/// The sample window.
class ScreenTest : public DeskTest {
  protected:
    void SetUp() override {
        form.show();
        settle();
    }
    void TearDown() override {
        form.unload();
        settle();
    }

    BoxPlayer boxes;
    machine::qt::Screens screens = sample_screens();
    MemoryFiles files;
    machine::qt::QtDesktop desktop{screens, files};
    frmSample form{desktop};
};

}  // namespace tests
