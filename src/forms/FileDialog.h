#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QFileDialog>

namespace KOVAVSFDataGridLib {

// Asks for a file. Where the system has no file dialog of its own, the parts of Qt's one, and what it asks
// about files, are in the language of the interface, whatever translator the host has installed.
class FileDialog final : public QFileDialog
{
    Q_OBJECT

public:
    // For a file that is there. `start` is a folder or a file; `filters` are as QFileDialog takes them.
    static QString askToOpen(QWidget *parent, const QString &title, const QString &start,
                             const QString &filters);
    // For one that may be there already; then the user has agreed to replace it. `filter` is the one that is
    // chosen at first, and in the end; it may be null. All answer an empty name when the user cancels.
    static QString askToSave(QWidget *parent, const QString &title, const QString &start,
                             const QString &filters, QString *filter = nullptr);

    FileDialog(QWidget *parent, const QString &title, const QString &start, const QString &filters);

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void accept() override;

private:
    static QString ask(QPointer<FileDialog> dialog, QString *filter);

    bool isQtsOwn() const;
    void start();
    void nameParts();
    void nameAccept();

    bool m_isStarted = false;
};

} // namespace KOVAVSFDataGridLib
