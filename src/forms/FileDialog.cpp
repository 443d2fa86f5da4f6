#include "forms/FileDialog.h"

#include "forms/FormTexts.h"
#include "forms/Messages.h"

#include <QtCore/QStandardPaths>
#include <QtGui/QAction>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLineEdit>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView nameEdit = "fileNameEdit"_L1; // the name in Qt's own dialog

} // namespace

FileDialog::FileDialog(QWidget *parent, const QString &title, const QString &start, const QString &filters)
    : QFileDialog(parent, title, start, filters)
{
    QList<QUrl> places;
    for (const auto place :
         {QStandardPaths::HomeLocation, QStandardPaths::DesktopLocation, QStandardPaths::DocumentsLocation}) {
        const QUrl url = QUrl::fromLocalFile(QStandardPaths::writableLocation(place));
        if (QFileInfo(url.toLocalFile()).isDir() && !places.contains(url))
            places.append(url);
    }
    setSidebarUrls(places); // Qt's default list begins with an entry that has an English name
    // In detail view, the column headings would be Qt's, and they can't be changed.
    setViewMode(List);
}

QString FileDialog::askToOpen(QWidget *parent, const QString &title, const QString &start,
                              const QString &filters)
{
    // On the heap, because the parent owns it too: either may be destroyed first.
    const QPointer<FileDialog> dialog = new FileDialog(parent, title, start, filters);
    dialog->setFileMode(ExistingFile);
    return ask(dialog, nullptr);
}

QString FileDialog::askToSave(QWidget *parent, const QString &title, const QString &start,
                              const QString &filters, QString *filter)
{
    const QPointer<FileDialog> dialog = new FileDialog(parent, title, start, filters);
    dialog->setAcceptMode(AcceptSave);
    if (filter)
        dialog->selectNameFilter(*filter);
    return ask(dialog, filter);
}

QString FileDialog::ask(const QPointer<FileDialog> &dialog, QString *filter)
{
    const bool isChosen = dialog->exec() == Accepted;
    if (!dialog)
        return {};
    QString file = isChosen ? dialog->selectedFiles().value(0) : QString();
    if (isChosen && filter)
        *filter = dialog->selectedNameFilter();
    delete dialog;
    return file;
}

bool FileDialog::isQtsOwn() const
{
    return findChild<QLineEdit *>(nameEdit) != nullptr;
}

void FileDialog::showEvent(QShowEvent *event)
{
    start();
    QFileDialog::showEvent(event);
}

// Qt then writes its own words, in the parts as well, which have had the event when this one is through.
bool FileDialog::event(QEvent *event)
{
    const bool isHandled = QFileDialog::event(event);
    if (event->type() == QEvent::LanguageChange && m_isStarted)
        nameParts();
    return isHandled;
}

void FileDialog::start()
{
    if (!isQtsOwn() || m_isStarted)
        return;
    m_isStarted = true;
    nameParts();
    // Qt sets its own text when a folder is selected and whenever the text changes.
    connect(findChild<QLineEdit *>(nameEdit), &QLineEdit::textChanged, this, &FileDialog::nameAccept);
    connect(this, &QFileDialog::currentChanged, this, &FileDialog::nameAccept);
    connect(this, &QFileDialog::directoryEntered, this, &FileDialog::nameAccept, Qt::QueuedConnection);
}

void FileDialog::nameParts()
{
    setLabelText(LookIn, FormTexts::LookInFolder);
    setLabelText(FileName, FormTexts::NameOfFile);
    setLabelText(FileType, FormTexts::TypeOfFile);
    setLabelText(Reject, FormTexts::Cancel);
    const std::pair<QString, Text> buttons[] = {
        {u"backButton"_s, FormTexts::BackFolder},       {u"forwardButton"_s, FormTexts::ForwardFolder},
        {u"toParentButton"_s, FormTexts::ParentFolder}, {u"newFolderButton"_s, FormTexts::NewFolder},
        {u"listModeButton"_s, FormTexts::ListOfFiles},  {u"detailModeButton"_s, FormTexts::DetailsOfFiles}};
    for (const auto &[name, text] : buttons) {
        if (auto *const button = findChild<QAbstractButton *>(name)) {
            button->setToolTip(text);
            button->setAccessibleName(text);
        }
    }
    const std::pair<QString, Text> actions[] = {{u"qt_rename_action"_s, FormTexts::RenameFile},
                                                {u"qt_delete_action"_s, FormTexts::DeleteFile},
                                                {u"qt_show_hidden_action"_s, FormTexts::HiddenFiles},
                                                {u"qt_new_folder_action"_s, FormTexts::NewFolderEntry}};
    for (const auto &[name, text] : actions) {
        if (auto *const action = findChild<QAction *>(name))
            action->setText(text);
    }
    const std::pair<QString, Text> lists[] = {{u"listView"_s, FormTexts::ListedFiles},
                                              {u"treeView"_s, FormTexts::ListedFiles},
                                              {u"sidebar"_s, FormTexts::ListedPlaces}};
    for (const auto &[name, text] : lists) {
        if (auto *const list = findChild<QWidget *>(name))
            list->setAccessibleName(text);
    }
    nameAccept();
}

void FileDialog::nameAccept()
{
    const QString typed = findChild<QLineEdit *>(nameEdit)->text();
    const bool isFolder = !typed.isEmpty() && QFileInfo(directory(), typed).isDir();
    const bool saves = acceptMode() == AcceptSave && !isFolder;
    setLabelText(Accept, saves ? FormTexts::Save : FormTexts::OpenFile);
}

// Replaces the questions and messages that Qt would show here.
void FileDialog::accept()
{
    const QFileInfo file(selectedFiles().value(0));
    const QPointer<FileDialog> alive(this);
    if (isQtsOwn() && acceptMode() == AcceptSave && file.exists() && !file.isDir()) {
        if (!Messages::ask(this, FormTexts::ExportReplace.arg(file.fileName()), windowTitle(),
                           QMessageBox::Question, QMessageBox::No) ||
            !alive)
            return;
        setOption(DontConfirmOverwrite);
    }
    if (isQtsOwn() && acceptMode() == AcceptOpen && !file.exists()) {
        Messages::show(this, FormTexts::FileMissing.arg(file.fileName()), windowTitle());
        return;
    }
    QFileDialog::accept();
}

} // namespace KOVAVSFDataGridLib
