#include "machine/posix/posix_files.h"
#include "machine/qt/look/korean.h"
#include "tests/screen/screen_fixture.h"
#include "tests/support/files_on_disk.h"
#include "tests/support/utf8.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTimer>
#include <QTreeView>

namespace tests {

namespace {

using platform::FileQuestion;
using Purpose = platform::FileQuestion::Purpose;

class FileDialogs : public DeskTest {
  protected:
    FileDialogs() {
        std::filesystem::create_directories(documents);
        for (const char* name : {"글.txt", "소리.WAV", "그림.jpg"}) put(documents / name, "x");
    }

    /// The dialog's answer after the user has done this in it.
    std::string ask(const FileQuestion& question, const std::function<void(QFileDialog&)>& act) {
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return ADD_FAILURE() << "no dialog";
            act(*dialog);
        });
        const auto chosen = desktop.ask_for_file(question);
        return chosen ? utf8(*chosen) : "nothing";
    }
    static std::function<void(QFileDialog&)> entering(const std::filesystem::path& name) {
        return [name](QFileDialog& dialog) {
            auto& field = *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            field.setText(QString::fromStdString(name.string()));
            QTest::keyClick(&field, Qt::Key_Return);
        };
    }
    static void cancel(QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }

    FilesOnDisk disk;
    std::filesystem::path documents = disk.folder.path() / "문서 'a;b'";
    std::string in_documents = utf8(machine::posix::Paths::from_posix(documents)) + "\\";
    machine::qt::Screens screens = sample_screens();
    machine::qt::QtDesktop desktop{screens, disk.files};

    const FileQuestion open{.purpose = Purpose::open,
                            .title = u"열기",
                            .filter = u"모든 파일(*.*)|*.*|그림(*.bmp;*.jpg)|*.bmp;*.jpg"};
    const FileQuestion save{.purpose = Purpose::save, .title = u"저장", .filter = u"Wav 파일|*.wav"};
};

TEST_F(FileDialogs, AnswerInTheProgramsPathsAndOpenWhereTheUserWasLast) {
    EXPECT_EQ(ask(open, entering(documents / "글.txt")), in_documents + "글.txt");
    EXPECT_EQ(ask(save, entering(documents / "새 소리")), in_documents + "새 소리.wav")
        << "with the kind's ending";
    EXPECT_EQ(ask(save, entering("글.txt")), in_documents + "글.txt")
        << "taken names are the caller's matter";
    EXPECT_EQ(ask(open, cancel), "nothing");
    EXPECT_EQ(ask(open, entering("그림.jpg")), in_documents + "그림.jpg");

    std::filesystem::create_directories(disk.application / "drive_c/temp");
    put(disk.application / "drive_c/temp/tmp.wav", "x");
    EXPECT_EQ(ask(open, entering(disk.application / "drive_c/temp/tmp.wav")), "c:\\temp\\tmp.wav");
    EXPECT_EQ(ask(save, entering("글.txt")), in_documents + "글.txt") << "what it is asked for has its own";
}

TEST_F(FileDialogs, ShowTheFilesOfTheFilterAndTheNameThatWasChosenBefore) {
    ask(open, entering(documents / "글.txt"));
    ask(open, [&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("열기"));
        EXPECT_EQ(dialog.nameFilters(),
                  (QStringList{"모든 파일(*.*) (*)", "그림(*.bmp;*.jpg) (*.bmp *.jpg)"}));
        EXPECT_EQ(dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->itemText(1).trimmed(),
                  QStringLiteral("그림(*.bmp;*.jpg)"));
        cancel(dialog);
    });
    FileQuestion again = save;
    again.file_name = machine::posix::Paths::from_posix(documents / "소리.WAV");
    EXPECT_EQ(
        ask(again,
            [](QFileDialog& dialog) {
                EXPECT_EQ(dialog.selectedFiles().value(0).section(u'/', -1), QStringLiteral("소리.WAV"));
                QTest::keyClick(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
            }),
        in_documents + "소리.WAV");
}

TEST_F(FileDialogs, AreInKorean) {
    machine::qt::KoreanTranslator korean;
    QApplication::installTranslator(&korean);
    for (const FileQuestion* question : {&open, &save}) {
        ask(*question, [&](QFileDialog& dialog) {
            QStringList words;
            for (const auto* button : dialog.findChildren<QAbstractButton*>())
                words << button->text() << button->toolTip();
            for (const auto* label : dialog.findChildren<QLabel*>()) words << label->text();
            const auto& model = *dialog.findChild<QTreeView*>(QStringLiteral("treeView"))->model();
            for (int column = 0; column < model.columnCount(); ++column)
                words << model.headerData(column, Qt::Horizontal).toString();
            for (QString& word : words) {
                word.remove(QRegularExpression(QStringLiteral("\\(&[A-Z]\\)")));
                EXPECT_FALSE(word.contains(QRegularExpression(QStringLiteral("[A-Za-z]"))))
                    << word.toStdString();
            }
            const QString accept = question == &open ? QStringLiteral("열기") : QStringLiteral("저장");
            EXPECT_TRUE(words.contains(accept)) << words.join(u'|').toStdString();
            cancel(dialog);
        });
    }
    QApplication::removeTranslator(&korean);
}

}  // namespace

}  // namespace tests
