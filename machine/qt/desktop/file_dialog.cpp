#include "machine/qt/desktop/file_dialog.h"

#include "machine/qt/typing/conversion.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QSplitter>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>

namespace machine::qt {

using platform::FileQuestion;
using platform::Text;

namespace {

struct NameFilter {
    QString name;
    QStringList patterns;
};

std::vector<NameFilter> filters_of(const Text& filter) {
    const QStringList parts = to_qstring(filter).split(u'|');
    std::vector<NameFilter> filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters.push_back({parts[i], parts[i + 1].split(u';')});
    return filters;
}

/// The filter in Qt's form: the name with the patterns in brackets, and "*" for all files.
QString toolkit_filter(const NameFilter& filter) {
    QStringList patterns = filter.patterns;
    patterns.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
    return filter.name + QStringLiteral(" (") + patterns.join(u' ') + u')';
}

/// The ending that a name without one gets, from a pattern such as "*.wav"; empty when any will do.
QString suffix_of(const QString& pattern) {
    const QString suffix = pattern.section(u'.', -1);
    return pattern.contains(u'.') && !suffix.contains(u'*') ? suffix : QString();
}

QString first_folder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

/// Where users keep what they send, as far as they have such folders.
QList<QUrl> places() {
    QList<QUrl> urls;
    for (const auto place : {QStandardPaths::DesktopLocation, QStandardPaths::DocumentsLocation,
                             QStandardPaths::DownloadLocation, QStandardPaths::HomeLocation}) {
        const QUrl url = QUrl::fromLocalFile(QStandardPaths::writableLocation(place));
        if (QDir(url.toLocalFile()).exists() && !urls.contains(url)) urls.append(url);
    }
    const QUrl computer(QStringLiteral("file:"));
    urls.append(computer);
    return urls;
}

/// Makes room for the places and for long names. The column of kinds is hidden: a file's name shows its kind.
void arrange(QFileDialog& dialog) {
    constexpr int SIZE_COLUMN = 1;
    constexpr int KIND_COLUMN = 2;
    constexpr int DATE_COLUMN = 3;
    dialog.resize(760, 480);
    if (auto* splitter = dialog.findChild<QSplitter*>(QStringLiteral("splitter")))
        splitter->setSizes({150, 610});
    if (auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"))) {
        QHeaderView& header = *list->header();
        header.setSectionHidden(KIND_COLUMN, true);
        header.setStretchLastSection(false);
        header.setSectionResizeMode(0, QHeaderView::Stretch);
        for (const int column : {SIZE_COLUMN, DATE_COLUMN})
            header.setSectionResizeMode(column, QHeaderView::ResizeToContents);
    }
}

}  // namespace

std::optional<Text> FileDialog::ask(const FileQuestion& question, QWidget* parent) {
    const bool saves = question.purpose == FileQuestion::Purpose::save;
    QFileDialog dialog(parent, to_qstring(question.title));
    dialog.setObjectName(QStringLiteral("fileDialog"));
    dialog.setOptions(QFileDialog::HideNameFilterDetails | QFileDialog::DontConfirmOverwrite);
    // To open a file the desktop's own dialog, which the user knows. To save one Qt's: desktops would ask
    // whether a taken name may be overwritten, and so does who opens this dialog.
    dialog.setOption(QFileDialog::DontUseNativeDialog, saves);
    dialog.setViewMode(QFileDialog::Detail);
    dialog.setSidebarUrls(places());
    arrange(dialog);
    QString& folder = folders_[question.title];
    dialog.setDirectory(QDir(folder).exists() && !folder.isEmpty() ? folder : first_folder());

    const std::vector<NameFilter> filters = filters_of(question.filter);
    QStringList shown;
    for (const NameFilter& filter : filters) shown.append(toolkit_filter(filter));
    dialog.setNameFilters(shown);
    if (saves) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        if (!filters.empty()) dialog.setDefaultSuffix(suffix_of(filters.front().patterns.front()));
    } else {
        dialog.setFileMode(QFileDialog::ExistingFile);
    }
    if (question.file_name.find(u'\\') != Text::npos) {
        dialog.selectFile(QString::fromStdString(files_.machine_path(question.file_name)));
    } else if (!question.file_name.empty()) {
        dialog.selectFile(to_qstring(question.file_name));
    }

    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    const QFileInfo chosen(dialog.selectedFiles().front());
    folder = chosen.absolutePath();
    return files_.path_of(chosen.absoluteFilePath().toStdString());
}

}  // namespace machine::qt
