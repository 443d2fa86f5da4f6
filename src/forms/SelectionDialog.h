#pragma once

#include <QtWidgets/QDialog>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace KOVAVSFDataGridLib {

// Base of the dialogs for choosing fields and a sort: a band with the table's name, OK, Cancel and one result
// text. Only OK, Cancel and their keys end the dialog; closing its window does not.
class SelectionDialog : public QDialog
{
    Q_OBJECT

public:
    // Shows the title. An empty one changes nothing.
    void SetTitle(const QString &strTitle);
    // Shows a picture before the title. A null one changes nothing.
    void SetPicture(const QIcon &picture);

    // Empty until OK has succeeded.
    const QString &strRetFields() const { return m_strRetFields; }

protected:
    // `bandName` is the object name of the band around the table's name.
    SelectionDialog(const QString &name, const QString &caption, const QString &bandName, QWidget *parent);

    // The layout between the band and the buttons.
    QVBoxLayout *content() const { return m_content; }
    // Call it after the content is complete, so that the buttons come last in the tab order.
    void addButtons();
    // Called by OK. Sets the result; the derived class decides whether to call accept().
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
