#pragma once

#include "query/StatementSource.h"
#include "query/colShowSQLSentences.h"
#include "query/fields/clsTableFieldManager.h"

namespace KOVAVSFDataGridLib {

// Which parts of a statement clsFilterManagement::GetRequirePartSQL keeps.
enum StatementParts : qint32 { AllParts = 1, PartsWithoutSort = 2, PartsWithoutCondition = 3 };

// Derives the statement that the control shows. A filter is a whole SELECT statement here. The manager stores
// the shown statements, oldest first, and owns the history with its field catalogue. Functions return true on
// success and false otherwise; those that return a text return an empty one on failure. None throws.
class clsFilterManagement
{
public:
    // How many statements can be gone back to, the first one among them.
    static constexpr qsizetype statementsKept = 1000;

    // The manager's state besides its settings, for reading.
    struct Memory
    {
        QString originFilter;      // the first statement
        QString previousFilter;    // the statement that "back" returns to
        QString lastUseFilter;     // the statement shown
        QStringList filterStack;   // the first statement shown and the last ones, oldest first
        bool isFirstUsed = false;  // whether GetCurrentSQL(0) has returned AllFields
        QString currentStatement;  // the statement that the next one is derived from
        QString currentPartFields; // the user's latest choice of fields, as a statement
        QString currentSortFields; // the user's latest choice of a sort order
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
    // The statement also becomes the shown one and the previous one.
    void SetOriginFilter(const QString &statement);
    const QString &LastUseFilter() const { return m_memory.lastUseFilter; }
    const Memory &Remembered() const { return m_memory; }

    // The history. It lives as long as the manager.
    colShowSQLSentences &SQLManager() { return m_history; }
    const colShowSQLSentences &SQLManager() const { return m_history; }

    // Passes the settings to the history.
    bool SetSQLInitData();

    // Shows the current statement with one more condition, or a given statement.
    bool LetNewFilter(const QString &strNewFilter, QString &strCurrentFilter);
    bool LetNewSQLStr(const QString &strNewSQL);

    // Goes back one statement; false if there is none. IsCanPreviewFilter goes back too.
    bool GetPreviewFilter(QString &PassFilter);
    bool IsCanPreviewFilter(QString &PassFilter);

    // The SELECT list of AllFields or ShowFields, followed by the shown statement from FROM on.
    QString GetAllFieldSQL() const { return FieldListWithCurrentSource(m_allFields); }
    QString GetPartFieldSQL() const { return FieldListWithCurrentSource(m_showFields); }

    // Derives a statement and makes it the shown one. If the number is not one of StatementType, or if
    // nothing can be derived, returns the shown statement. PreviousStatement, ChosenFieldsStatement and
    // ChosenSortStatement return an empty text if there is no previous statement or the user cancels.
    // GetCurrentSQL20 derives AllFieldsStatement and PartFieldsStatement from the latest entry of the
    // history.
    QString GetCurrentSQL(StatementType SQLType);
    QString GetCurrentSQL20(StatementType SQLType);

    // Let the user choose. They return a statement with the chosen fields and the FROM part of
    // `strCurrentSQL`, or a sort list. False if the user cancels.
    bool GetPartShowSelFields(const QString &strAllFields, const QString &strPartField,
                              const QString &strCurrentSQL, QString &strRetFields);
    bool GetPartSortSelFields(const QString &strAllFields, const QString &strSortField,
                              QString &strRetFields);
    bool GetPartShowFields(QString &strRetSelFields);
    bool GetPartSortFields(QString &strRetSelFields);

    // The parts of a statement. If the number is not one of StatementParts, returns true and an empty text.
    // For an empty statement, returns false.
    bool GetRequirePartSQL(const QString &strOrgSQL, StatementParts lngSelPart, QString &strRetSQL) const;

    // The name of the field at a 1-based position in the current statement; empty if there is none.
    QString GetSelFieldRealName(const QString &strConnString, qint32 FieldIndex);

    void GotoOrignState();
    // Forgets all statements and sorts, including those of the settings, and empties the history.
    void ClearFilter();
    void ClearCurrMess();
    void ClearCurrStatus() {}
    void ClearObject();

private:
    // Empty if the statement can be processed as plain text.
    std::optional<QString> WithoutConditions(const QString &statement) const;
    QString FieldListWithCurrentSource(const QString &fieldStatement) const;
    void Push(const QString &statement);
    void MakeCurrent(const QString &statement);
    QString MakeDerivedCurrent(StatementType SQLType, bool isDerivedByHistory);
    // Returns an empty text if nothing needs to be derived, and nothing if the command ends here.
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
