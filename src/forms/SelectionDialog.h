#pragma once

#include <QtWidgets/QDialog>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace KOVAVSFDataGridLib {

// What the dialogs for choosing fields and a sort share: a band with the table's name, OK, Cancel and one
// result text. Only OK, Cancel and the keys for them end the dialog; closing its window does not.
class SelectionDialog : public QDialog
{
    Q_OBJECT

public:
    // Shows the title; an empty one leaves what is shown.
    void SetTitle(const QString &strTitle);
    // Shows a picture in front of the title; a null one leaves what is shown.
    void SetPicture(const QIcon &picture);

    // Empty until OK has succeeded.
    const QString &strRetFields() const { return m_strRetFields; }

protected:
    // `bandName` is the object name of the band around the table's name.
    SelectionDialog(const QString &name, const QString &caption, const QString &bandName, QWidget *parent);

    // Goes between band and buttons.
    QVBoxLayout *content() const { return m_content; }
    // To be called once the content is complete, so that the tab key reaches the buttons last.
    void addButtons();
    // Called by OK. Keeps the result; the derived class decides whether to accept().
    virtual void acceptChoice() = 0;
    void setResultText(const QString &text) { m_strRetFields = text; }

    void closeEvent(QCloseEvent *event) override;

private:
    QWidget *makeBand(const QString &bandName);

    QLabel *m_picture;
    QLineEdit *m_tableName;
    QVBoxLayout *m_content;
    QHBoxLayout *m_buttons;
    QString m_strRetFields;
};

} // namespace KOVAVSFDataGridLib
