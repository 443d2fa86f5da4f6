#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QFileDialog>

namespace KOVAVSFDataGridLib {

// Asks for a file. If the system has no native file dialog, Qt's dialog is shown, with all its texts and
// questions in the language of the interface, whatever translator the host has installed.
class FileDialog final : public QFileDialog
{
    Q_OBJECT

public:
    // Asks for an existing file. `start` is a folder or a file; `filters` are those of QFileDialog.
    static QString askToOpen(QWidget *parent, const QString &title, const QString &start,
                             const QString &filters);
    // Asks for a file to write; if it exists, the user has agreed to replace it. `filter` is the initial
    // filter and receives the chosen one; it may be null. All return an empty name if the user cancels.
    static QString askToSave(QWidget *parent, const QString &title, const QString &start,
                             const QString &filters, QString *filter = nullptr);

    FileDialog(QWidget *parent, const QString &title, const QString &start, const QString &filters);

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void accept() override;

private:
    static QString ask(const QPointer<FileDialog> &dialog, QString *filter);

    bool isQtsOwn() const;
    void start();
    void nameParts();
    void nameAccept();

    bool m_isStarted = false;
};

} // namespace KOVAVSFDataGridLib
