#pragma once

#include "query/fields/FieldChooser.h"
#include "query/fields/FieldReader.h"

#include <optional>

namespace KOVAVSFDataGridLib {

// Reads the field names of statements and lets the user choose from them.
class clsTableFieldManager
{
public:
    QString ConnString;
    QString AllFieldString;
    QString PartFieldString;
    QString SortFieldString;

    // Neither is owned; both must outlive the manager. Without a reader nothing can be read; without a
    // chooser every choice is cancelled.
    void SetFieldReader(FieldReader *reader) { m_reader = reader; }
    // Sets the names that the next choice writes for the fields of its statement, in order, until InitData().
    // An empty text excludes a field.
    void SetWrittenFields(const QStringList &written) { m_written = written; }
    // What the next choice offers after them, until then.
    void SetFurtherFields(const QList<OfferedField> &fields) { m_further = fields; }
    // Why they can't be sorted by, in the same order and until then; empty texts for those that can.
    void SetWhyNotSorted(const QStringList &reasons) { m_whyNotSorted = reasons; }
    // Which fields the next choice preselects, until then, instead of those with the names of its part
    // statement.
    void SetPartNames(const std::optional<QStringList> &names) { m_partNames = names; }
    // Together with the reader's engine, determines how names are written.
    void SetDBType(AllDBType type) { m_database = type; }
    void SetFieldChooser(FieldChooser *chooser) { m_chooser = chooser; }
    FieldChooser *GetFieldChooser() const { return m_chooser; }

    void InitData()
    {
        m_fieldNames.clear();
        m_written.clear();
        m_whyNotSorted.clear();
        m_further.clear();
        m_partNames.reset();
    }
    void ClearObject() { InitData(); }

    // The name of the field at a 1-based position in the statement; empty if there is none.
    QString GetSelFieldRealName(const QString &strConnString, qint32 FieldIndex, const QString &PassSQL);

    // Let the user choose the visible fields or the sort of a statement that is read through ConnString.
    // Return false and an empty output if the fields can't be read, the statement has no table or the user
    // cancels. If a part statement is empty or can't be read, nothing is preselected.
    bool GetPartSelFields(const QString &strAllField, const QString &strPartField, QString &strRetSelFields);
    bool GetSortSelFields(const QString &strAllField, const QString &strSortField, QString &strRetSelFields);

private:
    // Fills the working names. Returns false if they can't be read or there is no chooser.
    bool IsReadyToChoose(const QString &strAllField);
    QList<OfferedField> Offered() const;
    std::optional<QStringList> ReadNames(const QString &connectionString, const QString &statement);

    FieldReader *m_reader = nullptr;
    FieldChooser *m_chooser = nullptr;
    AllDBType m_database = dbAccess;
    QStringList m_fieldNames;
    QStringList m_written;
    QStringList m_whyNotSorted;
    QList<OfferedField> m_further;
    std::optional<QStringList> m_partNames;
};

} // namespace KOVAVSFDataGridLib
