#include "machine/qt/desktop/kept_layout.h"

#include <QHeaderView>
#include <QSettings>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

using machine::qt::KeptLayout;

/// A window with a splitter and a list that keep their sizes.
struct Window : QWidget {
    explicit Window(KeptLayout& layout) {
        setObjectName(QStringLiteral("frmSample"));
        resize(640, 400);
        panes.setObjectName(QStringLiteral("_panes"));
        panes.setProperty("first_sizes", QStringList{QStringLiteral("120"), QStringLiteral("300")});
        panes.addWidget(new QWidget);
        panes.addWidget(&list);
        list.setObjectName(QStringLiteral("ListView1"));
        list.setProperty("columnWidths", QStringList{QStringLiteral("50"), QStringLiteral("60")});
        list.setHeaderLabels({QStringLiteral("이름"), QStringLiteral("번호")});
        (new QVBoxLayout(this))->addWidget(&panes);
        layout.restore_parts(*this);
        show();
    }

    double left_share() const {
        return double(panes.sizes().front()) / (panes.sizes().front() + panes.sizes().back());
    }

    QSplitter panes;
    QTreeWidget list;
};

TEST(KeptLayoutTest, GivesSplittersAndColumnsBackAsTheUserLeftThem) {
    const QTemporaryDir folder;
    KeptLayout layout(folder.filePath(QStringLiteral("layout.ini")));
    {
        Window first(layout);
        EXPECT_NEAR(first.left_share(), 120.0 / 420, 0.1);
        first.panes.setSizes({350, 250});
        first.list.header()->resizeSection(0, 144);
        layout.keep(first);
    }
    KeptLayout next_start(folder.filePath(QStringLiteral("layout.ini")));
    const Window again(next_start);
    EXPECT_NEAR(again.left_share(), 350.0 / 600, 0.05);
    EXPECT_NEAR(again.list.header()->sectionSize(0), 144, 2);
}

TEST(KeptLayoutTest, AFileOfNonsenseMakesNothingTooSmallToGrasp) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("layout.ini"));
    QSettings nonsense(file, QSettings::IniFormat);
    nonsense.setValue(QStringLiteral("frmSample/ListView1"),
                      QStringList{QStringLiteral("-7"), QStringLiteral("x")});
    nonsense.setValue(QStringLiteral("frmSample/_panes"), QStringLiteral("only one"));
    nonsense.sync();
    KeptLayout layout(file);
    const Window window(layout);
    EXPECT_GE(window.list.header()->sectionSize(0), 20);
    EXPECT_NEAR(window.left_share(), 120.0 / 420, 0.1);
}

}  // namespace
