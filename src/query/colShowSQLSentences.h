#pragma once

#include "query/KeyedList.h"
#include "query/clsShowSQLSentence.h"
#include "query/derivation/Derivation.h"
#include "query/derivation/DerivationMemo.h"
#include "query/derivation/SqlText.h"
#include "query/fields/FieldReader.h"
#include "query/fields/colDataFields.h"
#include "sql/AllDBType.h"

namespace KOVAVSFDataGridLib {

// What the history and clsFilterManagement::GetCurrentSQL20 are asked for.
enum StatementType : qint32 {
    FirstStatement = 0,
    AllFieldsStatement = 1,
    PartFieldsStatement = 2,
    PreviousStatement = 3,
    ChosenFieldsStatement = 4, // the user chooses the fields
    ChosenSortStatement = 5    // the user chooses the sort
};

// The history: the statements that the grid has shown, oldest first, and the field catalogue of the newest
// one. Functions answer True when done and False otherwise, with the outputs as far as they were set; none
// throws. Positions count from 1; the latest entry is the one at Count().
class colShowSQLSentences
{
public:
    using const_iterator = KeyedList<clsShowSQLSentence>::const_iterator;

    // Markers for "as in the latest entry" in AddCurrentSQL.
    static QString NoPartField() { return QStringLiteral("NoPartField"); }
    static QString NoSort() { return QStringLiteral("NoSort"); }

    // `reader` isn't owned and must outlive the history; without one, nothing can be read through a
    // connection.
    explicit colShowSQLSentences(FieldReader *reader = nullptr) : m_reader(reader) {}

    void SetFieldReader(FieldReader *reader) { m_reader = reader; }
    // Decides how names that have to be quoted are quoted.
    void SetDBType(AllDBType type) { m_database = type; }

    const QString &ConnString() const { return m_connString; }
    void SetConnString(const QString &text) { m_connString = text; }
    const QString &AllFields() const { return m_allFields; }
    void SetAllFields(const QString &text) { m_allFields = text; }
    const QString &ShowFieds() const { return m_showFieds; }
    void SetShowFieds(const QString &text) { m_showFieds = text; }
    const QString &CurrFieds() const { return m_currFieds; }
    void SetCurrFieds(const QString &text) { m_currFieds = text; }
    const QString &FilterWord() const { return m_filterWord; }
    void SetFilterWord(const QString &text) { m_filterWord = text; }
    const QString &OrderWord() const { return m_orderWord; }
    void SetOrderWord(const QString &text) { m_orderWord = text; }
    const QString &OriginFilter() const { return m_originFilter; }
    void SetOriginFilter(const QString &text) { m_originFilter = text; }
    const colDataFields &DataFields() const { return m_catalogue; }
    colDataFields &DataFields() { return m_catalogue; }
    void SetDataFields(const colDataFields &catalogue) { m_catalogue = catalogue; }

    // A statement that entries show as its host has written it, in several lines and with comments, and the
    // one line that is run and that others are derived from; see joinStatementLines.
    void SetWritten(const QString &statement, const QString &line);
    // That line; any other statement as it is.
    QString LineOf(const QString &statement) const { return statement == m_written ? m_line : statement; }

    bool SetSQLInitData(const QString &strAllFields, const QString &strShowFieds,
                        const QString &strFilterWord, const QString &strOrderWord,
                        const QString &strOriginFilter);

    // Each adds an entry. An empty *PassKey (or none) gets a new key, which it then holds; a given one is
    // used as it is. False when the key is taken.
    bool AddSimpleSQLMess(const QString &strOrgSQL, const QString &strShowSQL, ShownFields lngIsShowAllFields,
                          QString *PassKey = nullptr);
    bool AddSQLMess(const QString &strOrgSQL, const QString &strShowSQL, ShownFields lngIsShowAllFields,
                    const QString &strAllFields, const QString &strPartFields, const QString &strOrderFields,
                    const QString &strCurrPartFields = {}, const QString &strCurrOrderFields = {},
                    QString *PassKey = nullptr);
    bool AddAllSQLMess(const QString &strSQLFields, const QString &strSQLWhere, const QString &strSQLOrder,
                       const QString &strOrgSQL, const QString &strShowSQL, ShownFields lngIsShowAllFields,
                       const QString &strAllFields, const QString &strPartFields,
                       const QString &strOrderFields, const QString &strCurrPartFields = {},
                       const QString &strCurrOrderFields = {}, QString *PassKey = nullptr);
    // Adds what the grid shows now, with the set-up values of the history; the markers above keep the user's
    // choices of the latest entry. False when the statement is empty.
    bool AddCurrentSQL(const QString &strShowSQL, ShownFields lngIsShowAllFields,
                       const QString &strCurrPartFields = {}, const QString &strCurrSortFields = {},
                       QString *PassKey = nullptr);

    bool GetLatestSQL(QString &PassFilter, QString *PassKey = nullptr) const;
    bool RemoveLatestSQL();
    // One step back, and back to the first entry; the first is never removed. When the connection can't be
    // opened, the answer is False and no entry is removed. A part statement that can't be read does no harm.
    bool GetPreviewSQL(QString &PassFilter, QString *PassKey = nullptr);
    bool GetFirstSQL(QString &PassFilter, QString *PassKey = nullptr);

    // Statements derived from the latest entry; they add no entry. `SQLType` is AllFieldsStatement or
    // PartFieldsStatement; any other number answers True with an empty statement.
    bool GetNextSQLByFilter(const QString &strNewFilter, QString &strCurrentFilter) const;
    bool GetNextSQLBySort(const QString &strNewSort, QString &strCurrentFilter) const;
    bool GetNextShowSQL(StatementType SQLType, QString &PassSQL) const;

    // The statement whose list is "*" alone with the source's fields in its place, in quotes, long binary
    // fields last. Every other statement comes back as it is.
    bool GetAllFieldNameSQL(const QString &strPassConnString, const QString &strOrgSQL,
                            QString &strRetSQL) const;

    // Brings the catalogue in step with the latest entry: fills it when it is empty, marks the part fields
    // when the entry has some. False when the connection can't be opened or a statement's fields can't be
    // read.
    bool GetCurrSQLFieldsStatus(const QString &PassConnString = {});

    // How other statements are derived from this one; null when it is empty or its engine isn't known.
    // Then, and where Derivation::isTextWork says so, statements are derived as plain text.
    std::shared_ptr<const Derivation> DerivationOf(const QString &statement) const;
    // The same where plain text work won't do.
    std::shared_ptr<const Derivation> DerivationOf(const QString &statement, DerivationStep step) const;

    // Why a command can't derive from the latest entry, for a person to read; empty when it can.
    QString WhyNot(DerivationStep step) const;

    // Why the latest entry can't be shown with the part fields that it has, for a person to read; empty when
    // it can, or has none.
    QString WhyNoPartFields() const;

    // What a condition writes for a column of a result that was opened with `shownStatement` and has these
    // fields; `column` counts from 0. Tells columns of equal names apart. Empty when there is no such name.
    QString GetColumnRealName(const QString &shownStatement, const QStringList &shownNames,
                              qsizetype column) const;
    // What the filter dialog offers instead of a table's fields; nothing for simple statements of one table.
    std::optional<FilteredResult> GetFilteredResult() const;

    // The condition that a statement has already, over the rows of GetFilteredResult() or of its table.
    QString GetConditionOf(const QString &statement) const;
    // What a condition writes for a field of the catalogue, where that isn't left to whoever builds it.
    QString GetConditionName(const clsDataField &field) const;

    // Whether a condition on the latest entry can name a field of the catalogue.
    bool CanName(const clsDataField &field) const;

    // How the engine reads texts and names; as in the standard while it isn't known.
    Dialect UsedDialect() const { return dialectOf(m_database, engineOf(m_connString)); }

    // `shown`, which was derived from `all` or from a choice of its fields, with other fields of `all`; for a
    // statement that hasListAsTable().
    QString WithFieldsOfWhole(const Derivation &shown, const Derivation &all, const Derivation &fields) const;

    // Whether conditions and sorts can name only the fields that are shown, and not the others of `all`.
    bool NamesShownAlone(const Derivation &all) const;

    // Whether the statement's rows depend on the fields in its list.
    bool IsDistinct(const QString &statement) const;

    // The head of a statement with chosen fields, as AddCurrentSQL takes it for the part fields.
    QString GetFieldsStatement(const QString &statement) const;

    // The statement with this sort, unless it is sorted already or one of both is empty.
    QString Sorted(const QString &statement, const QString &sortList) const;

    bool UpdateSelPartFields(const QString &strPassPartFields);
    bool UpdateSelSortFields(const QString &strPassSortFields);

    QString GetSelFieldRealName(const QString &strFieldName) const;
    bool IsSelFieldPartField(const QString &strFieldName) const;
    // For each field of the catalogue, whether it is a part field: of fields that share a name, the chosen
    // one alone where that is known, else all of them.
    QList<bool> PartFields() const;
    // For each field of a statement that was derived from the latest entry's, what a list has for it, where
    // several of the entry's fields share a name. Nothing where names are enough or entries can't tell.
    QStringList EntriesOfEqualNames(const QString &statement) const;
    // Marks them so. Nothing happens when these are not as many as the catalogue has.
    void SetPartFields(const QList<bool> &areParts);
    // How many fields the latest entry shows; False when there is no entry.
    bool GetCurrShowFieldsCount(qint32 &PassCount) const;

    qsizetype Count() const { return m_entries.Count(); }
    // Null when there is none. The pointer lasts until the history changes.
    clsShowSQLSentence *Item(qsizetype position);
    clsShowSQLSentence *Item(const QString &key) { return Item(m_entries.PositionOf(key)); }
    const clsShowSQLSentence *Item(qsizetype position) const;
    const clsShowSQLSentence *Item(const QString &key) const { return Item(m_entries.PositionOf(key)); }
    // Nothing happens when there is no such entry.
    void Remove(qsizetype position) { m_entries.Remove(position); }
    void Remove(const QString &key) { Remove(m_entries.PositionOf(key)); }
    // Empties history, catalogue and all texts; keys start again.
    bool Clear();

    const_iterator begin() const { return m_entries.begin(); }
    const_iterator end() const { return m_entries.end(); }

private:
    std::shared_ptr<const Derivation> DerivationOf(const QString &statement,
                                                   const std::vector<SourceField> &fields,
                                                   const QString &connectionString) const;
    std::shared_ptr<const Derivation>
    WithAllFieldsInside(const std::shared_ptr<const Derivation> &shown) const;
    bool NamesByItself(const Derivation &all) const;
    const clsShowSQLSentence *Latest() const { return Item(Count()); }
    std::optional<SQLSentence> SplitLatest() const;
    QString WithFieldsOf(const QString &statement, const QString &fieldStatement) const;
    bool CanShowFieldsOf(const QString &partStatement) const;
    bool StepBackTo(qsizetype position, QString &PassFilter, QString *PassKey);
    bool BringInStepWith(const clsShowSQLSentence &entry, const QString &connectionString);
    QList<bool> PartOfEqualNames(const QString &statement, const QString &partStatement) const;
    bool FillCatalogue(const QString &connectionString, const QString &statement);
    QStringList NamesInCatalogue(const std::vector<SourceField> &fields) const;
    void WriteCatalogueAsText(const QString &statement);
    EngineMode engineOf(const QString &connectionString) const;

    FieldReader *m_reader = nullptr;
    AllDBType m_database = dbAccess;
    KeyedList<clsShowSQLSentence> m_entries{QStringLiteral("ForDel")};
    colDataFields m_catalogue;
    bool m_isPartKnownByPlace = false; // and not by name alone
    mutable DerivationMemo m_derivations;
    QString m_connString;
    QString m_allFields;
    QString m_showFieds;
    QString m_currFieds;
    QString m_filterWord;
    QString m_orderWord;
    QString m_originFilter;
    QString m_written;
    QString m_line;
};

} // namespace KOVAVSFDataGridLib
