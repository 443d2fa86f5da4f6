#pragma once

#include <QtWidgets/QDialog>

class QComboBox;
class QPushButton;

namespace KOVAVSFDataGridLib {

class colDataFields;

// Asks what to search for, and in which field. The results are set after Find has succeeded.
class FindDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit FindDialog(QWidget *parent = nullptr);

    // Offers all fields together, and each field of the catalogue. Returns false if there is no catalogue or
    // it is empty.
    bool InitFrm(const colDataFields *colFields);

    // The words of earlier searches, newest first, which are offered as suggestions. After Find, the list
    // includes the words just typed.
    void SetEarlierWords(const QStringList &words);
    const QStringList &EarlierWords() const { return m_earlierWords; }

    // The words to search for, separated by "%"; empty until Find has succeeded.
    const QString &strFindText() const { return m_strFindText; }
    // The chosen field, or the text for all fields.
    const QString &strFieldName() const { return m_strFieldName; }
    void PutStrFieldName(const QString &name) { m_strFieldName = name; }
    // Whether a single field was chosen.
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
