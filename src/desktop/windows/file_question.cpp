// SPDX-License-Identifier: MIT
// The file dialogs: filters in any capitals, the ending that a filter asks for, and no question about replacing a file
// where the program asks its own.
#include "desktop/windows/questions.h"

#include <algorithm>

#include <QAbstractFileIconProvider>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetrics>
#include <QHeaderView>
#include <QLocale>
#include <QSplitter>
#include <QTreeView>

#include "desktop/drawing/texts.h"

namespace velmor::desktop {

namespace file_question_detail {

constexpr int lettersAcross = 115; ///< room for names, sizes and dates
constexpr int linesDown = 32;
constexpr int placesAcross = 22; ///< letters of the names of places, at the side
constexpr int overwritePrompt = 0x2;

// On a file system that tells capitals apart, "*.CEC" must also find "bass.cec".
QString inAnyCapitals(const QString& patterns)
{
    QStringList result;
    for (const QString& pattern : patterns.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString bare = pattern.trimmed() == QStringLiteral("*.*") ? QStringLiteral("*") : pattern.trimmed();
        for (const QString& form : {bare, bare.toLower(), bare.toUpper()})
            if (!result.contains(form))
                result.append(form);
    }
    return result.join(QLatin1Char(' '));
}

// The toolkit's own icons and kinds come from the contents of files, and reading a pipe or a device may wait for good.
class IconsByName final : public QAbstractFileIconProvider {
public:
    QIcon icon(const QFileInfo& file) const override
    {
        return QAbstractFileIconProvider::icon(file.isDir() ? Folder : File);
    }
    QIcon icon(IconType kind) const override { return QAbstractFileIconProvider::icon(kind); }
    QString type(const QFileInfo& file) const override { return file.suffix().toUpper(); }
};

} // namespace file_question_detail

QStringList nameFilters(const std::string& filter)
{
    const QStringList parts = shown(filter).split(QLatin1Char('|'));
    QStringList result;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        result.append(QStringLiteral("%1 (%2)").arg(parts[i], file_question_detail::inAnyCapitals(parts[i + 1])));
    return result;
}

QString endingOf(const QString& nameFilter)
{
    const qsizetype open = nameFilter.lastIndexOf(QStringLiteral("(*."));
    if (open < 0)
        return {};
    const QString first = nameFilter.mid(open + 3).section(QLatin1Char(' '), 0, 0).section(QLatin1Char(')'), 0, 0);
    return first.contains(QLatin1Char('*')) ? QString() : first;
}

std::optional<std::string> askFile(QWidget* parent, const host::FileDialog& asked, const QString& folder,
                                   const QString& proposed)
{
    const bool saves = asked.kind == host::DialogKind::save;
    const QString start = asked.folder.empty() ? folder : shown(asked.folder);
    file_question_detail::IconsByName icons;
    // The dialog looks into its first folder as soon as it is made, with the toolkit's icons: one that holds folders alone.
    QFileDialog dialog(parent, shownTitle(asked.title), QDir::rootPath());
    dialog.setIconProvider(&icons);
    // The program's folder may be one that nobody writes to, as on a stick that is locked.
    const bool serves = QDir(start).exists() && (!saves || QFileInfo(start).isWritable());
    dialog.setDirectory(serves ? start : QDir::homePath());
    dialog.setObjectName(QStringLiteral("fileDialog"));
    dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    const QStringList filters = nameFilters(asked.filter);
    dialog.setNameFilters(filters);
    if (saves && !filters.isEmpty()) {
        dialog.setDefaultSuffix(endingOf(filters.first()));
        QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                         [&dialog](const QString& chosen) { dialog.setDefaultSuffix(endingOf(chosen)); });
    }
    dialog.setOption(QFileDialog::DontConfirmOverwrite,
                     !saves || (asked.flags & file_question_detail::overwritePrompt) == 0);
    if (saves && !proposed.isEmpty())
        dialog.selectFile(proposed);
    dialog.setOption(QFileDialog::HideNameFilterDetails); // the description names its pattern itself
    const QFontMetrics letters = dialog.fontMetrics();
    dialog.resize(letters.averageCharWidth() * file_question_detail::lettersAcross,
                  letters.height() * file_question_detail::linesDown);
    if (auto* parts = dialog.findChild<QSplitter*>(QStringLiteral("splitter"))) {
        const int places = letters.averageCharWidth() * file_question_detail::placesAcross;
        parts->setSizes({places, dialog.width() - places});
    }
    if (auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"))) {
        files->header()->setStretchLastSection(true); // else the caption of the dates is cut where letters are large
        const int smallFile =
            letters.horizontalAdvance(QLocale().formattedDataSize(1023)) + letters.averageCharWidth() * 2;
        files->setColumnWidth(1, std::max(files->columnWidth(1), smallFile)); // the toolkit thinks of large ones alone
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return held(dialog.selectedFiles().first());
}

} // namespace velmor::desktop
