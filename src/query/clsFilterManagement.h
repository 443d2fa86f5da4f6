#pragma once

#include "query/StatementSource.h"
#include "query/colShowSQLSentences.h"
#include "query/fields/clsTableFieldManager.h"

namespace KOVAVSFDataGridLib {

// What clsFilterManagement::GetRequirePartSQL keeps of a statement.
enum StatementParts : qint32 { AllParts = 1, PartsWithoutSort = 2, PartsWithoutCondition = 3 };

// Derives the statement that the control shows. A filter is a whole SELECT statement here. The manager
// remembers the statements shown, oldest first, and owns the history with its field catalogue. Functions
// answer True when done and False otherwise, those that answer a text an empty one; none throws.
class clsFilterManagement
{
public:
    // What the manager remembers beside its set-up, for whoever wants to look at it.
    struct Memory
    {
        QString originFilter;      // the first statement
        QString previousFilter;    // the statement that "back" leads to
        QString lastUseFilter;     // the statement shown
        QStringList filterStack;   // every statement shown, oldest first
        bool isFirstUsed = false;  // whether GetCurrentSQL(0) has delivered AllFields
        QString currentStatement;  // the statement that the next one is derived from
        QString currentPartFields; // the user's latest choice of fields, as a statement
        QString currentSortFields; // the user's latest choice of a sort
    };

    // Neither is owned; both must outlive the manager (see colShowSQLSentences and clsTableFieldManager).
    explicit clsFilterManagement(FieldReader *reader = nullptr, FieldChooser *chooser = nullptr);
    void SetFieldReader(FieldReader *reader);
    void SetFieldChooser(FieldChooser *chooser) { m_tableFields.SetFieldChooser(chooser); }
    FieldChooser *GetFieldChooser() const { return m_tableFields.GetFieldChooser(); }

    const QString &AllFields() const { return m_allFields; }
    void SetAllFields(const QString &text) { m_allFields = text; }
    const QString &ShowFields() const { return m_showFields; }
    void SetShowFields(const QString &text) { m_showFields = text; }
    const QString &OrderFields() const { return m_orderFields; }
    void SetOrderFields(const QString &text) { m_orderFields = text; }
    const QString &DBConnString() const { return m_dbConnString; }
    void SetDBConnString(const QString &text) { m_dbConnString = text; }
    AllDBType DBType() const { return m_dbType; }
    void SetDBType(AllDBType type);
    StatementSource TBLType() const { return m_tblType; }
    void SetTBLType(StatementSource type) { m_tblType = type; }
    qint32 FieldStatus() const { return m_fieldStatus; }
    void SetFieldStatus(qint32 status) { m_fieldStatus = status; }
    const QString &OriginFilter() const { return m_memory.originFilter; }
    // The statement also becomes the one shown and the one before it.
    void SetOriginFilter(const QString &statement);
    const QString &LastUseFilter() const { return m_memory.lastUseFilter; }
    const Memory &Remembered() const { return m_memory; }

    // The history; it lives as long as the manager.
    colShowSQLSentences &SQLManager() { return m_history; }
    const colShowSQLSentences &SQLManager() const { return m_history; }

    // Hands the set-up to the history.
    bool SetSQLInitData();

    // Makes the statement shown with one more condition, or a given statement, the one shown.
    bool LetNewFilter(const QString &strNewFilter, QString &strCurrentFilter);
    bool LetNewSQLStr(const QString &strNewSQL);

    // One statement back; False when there is none. IsCanPreviewFilter takes the step as well.
    bool GetPreviewFilter(QString &PassFilter);
    bool IsCanPreviewFilter(QString &PassFilter);

    // The SELECT list of AllFields or ShowFields with the FROM part of the statement shown and all behind it.
    QString GetAllFieldSQL() const { return FieldListWithCurrentSource(m_allFields); }
    QString GetPartFieldSQL() const { return FieldListWithCurrentSource(m_showFields); }

    // Derives a statement and makes it the one shown. Another number than those of
    // StatementType, and what derives nothing, answers the statement shown. PreviousStatement,
    // ChosenFieldsStatement and ChosenSortStatement answer an empty text when there is no way back or the
    // user cancels. GetCurrentSQL20 derives AllFieldsStatement and PartFieldsStatement from the history's
    // latest entry.
    QString GetCurrentSQL(StatementType SQLType);
    QString GetCurrentSQL20(StatementType SQLType);

    // Let the user choose: a statement with the chosen fields and the FROM part of `strCurrentSQL`, or a sort
    // list. False when the user cancels.
    bool GetPartShowSelFields(const QString &strAllFields, const QString &strPartField,
                              const QString &strCurrentSQL, QString &strRetFields);
    bool GetPartSortSelFields(const QString &strAllFields, const QString &strSortField,
                              QString &strRetFields);
    bool GetPartShowFields(QString &strRetSelFields);
    bool GetPartSortFields(QString &strRetSelFields);

    // The parts of a statement. Another number than those of StatementParts answers True with an empty text;
    // an empty statement answers False.
    bool GetRequirePartSQL(const QString &strOrgSQL, StatementParts lngSelPart, QString &strRetSQL) const;

    // The name of the current statement's field at a position counted from 1; empty when there is none.
    QString GetSelFieldRealName(const QString &strConnString, qint32 FieldIndex);

    void GotoOrignState();
    // Forgets all statements and sorts, the set-up's too, and empties the history.
    void ClearFilter();
    void ClearCurrMess();
    void ClearCurrStatus() {}
    void ClearObject();

private:
    // Nothing where plain text work will do.
    std::optional<QString> WithoutConditions(const QString &statement) const;
    QString FieldListWithCurrentSource(const QString &fieldStatement) const;
    void MakeCurrent(const QString &statement);
    QString MakeDerivedCurrent(StatementType SQLType, bool isDerivedByHistory);
    // An empty text when nothing is to be derived; nothing at all when the command ends here.
    std::optional<QString> Derive(StatementType SQLType, bool isDerivedByHistory);
    QString DeriveFromCurrent(StatementType SQLType) const;
    QString DeriveFromHistory(StatementType SQLType) const;

    QString m_allFields;
    QString m_showFields;
    QString m_orderFields;
    QString m_dbConnString;
    AllDBType m_dbType{};
    StatementSource m_tblType = FromTable;
    qint32 m_fieldStatus = 0;
    Memory m_memory;
    colShowSQLSentences m_history;
    clsTableFieldManager m_tableFields;
};

} // namespace KOVAVSFDataGridLib
