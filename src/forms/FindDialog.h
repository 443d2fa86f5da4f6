#pragma once

#include <QtWidgets/QDialog>

class QComboBox;
class QPushButton;

namespace KOVAVSFDataGridLib {

class colDataFields;

// Asks what to search for, and in which field. The answers are set once Find has succeeded.
class FindDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit FindDialog(QWidget *parent = nullptr);

    // Offers all fields together, then each field of the catalogue. False when there is no catalogue or
    // nothing in it.
    bool InitFrm(const colDataFields *colFields);

    // The words that were searched for before, the newest first, which are offered; and, after Find, with
    // those that were typed.
    void SetEarlierWords(const QStringList &words);
    const QStringList &EarlierWords() const { return m_earlierWords; }

    // The words searched for, "%" between them; empty until Find has succeeded.
    const QString &strFindText() const { return m_strFindText; }
    // The field chosen, or the text that means all fields.
    const QString &strFieldName() const { return m_strFieldName; }
    void PutStrFieldName(const QString &name) { m_strFieldName = name; }
    // Whether one field was chosen.
    bool bIsAppointField() const { return m_bIsAppointField; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool onKey(int key);
    void showHint();
    void removeHint();
    void keepOutOfHint();
    void onInputChanged(const QString &text);
    void find();
    void remember(const QString &words);

    QComboBox *m_input;
    QComboBox *m_fields;
    QPushButton *m_find;
    QStringList m_earlierWords;
    QString m_strFindText;
    QString m_strFieldName;
    bool m_bIsAppointField = false;
    bool m_isHintShown = false;
};

} // namespace KOVAVSFDataGridLib
