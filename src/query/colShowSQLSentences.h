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

// Which statement the history and clsFilterManagement::GetCurrentSQL20 return.
enum StatementType : qint32 {
    FirstStatement = 0,
    AllFieldsStatement = 1,
    PartFieldsStatement = 2,
    PreviousStatement = 3,
    ChosenFieldsStatement = 4, // the user chooses the fields
    ChosenSortStatement = 5    // the user chooses the sort order
};

// The history: the statements that the grid has shown, oldest first, and the field catalogue of the latest
// one. Functions return true on success and false otherwise, with the outputs set as far as possible. None
// throws. Positions start at 1; the latest entry is at Count().
class colShowSQLSentences
{
public:
    using const_iterator = KeyedList<clsShowSQLSentence>::const_iterator;

    // Markers for "as in the latest entry" in AddCurrentSQL.
    static QString NoPartField() { return QStringLiteral("NoPartField"); }
    static QString NoSort() { return QStringLiteral("NoSort"); }

    // `reader` isn't owned and must outlive the history. Without a reader, nothing can be read from a
    // database.
    explicit colShowSQLSentences(FieldReader *reader = nullptr) : m_reader(reader) {}

    void SetFieldReader(FieldReader *reader) { m_reader = reader; }
    // Determines how names are quoted.
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

    // The statement as the host wrote it, with line breaks and comments, which entries show, and the single
    // line that is run and that others are derived from; see joinStatementLines.
    void SetWritten(const QString &statement, const QString &line);
    // The single line for the host's statement; any other statement unchanged.
    QString LineOf(const QString &statement) const { return statement == m_written ? m_line : statement; }

    bool SetSQLInitData(const QString &strAllFields, const QString &strShowFieds,
                        const QString &strFilterWord, const QString &strOrderWord,
                        const QString &strOriginFilter);

    // Each adds an entry. If *PassKey is empty (or PassKey is null), a key is generated and stored there;
    // otherwise the given key is used. Returns false if the key exists already.
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
    // Adds what the grid shows now, with the history's settings. The markers above keep the user's choices of
    // the latest entry. Returns false if the statement is empty.
    bool AddCurrentSQL(const QString &strShowSQL, ShownFields lngIsShowAllFields,
                       const QString &strCurrPartFields = {}, const QString &strCurrSortFields = {},
                       QString *PassKey = nullptr);

    bool GetLatestSQL(QString &PassFilter, QString *PassKey = nullptr) const;
    bool RemoveLatestSQL();
    // Go back one step, or to the first entry, which is never removed. Return false and remove nothing if the
    // connection can't be opened. A part statement that can't be read is ignored.
    bool GetPreviewSQL(QString &PassFilter, QString *PassKey = nullptr);
    bool GetFirstSQL(QString &PassFilter, QString *PassKey = nullptr);

    // Statements derived from the latest entry; they add no entry. `SQLType` is AllFieldsStatement or
    // PartFieldsStatement; any other number returns true and an empty statement.
    bool GetNextSQLByFilter(const QString &strNewFilter, QString &strCurrentFilter) const;
    bool GetNextSQLBySort(const QString &strNewSort, QString &strCurrentFilter) const;
    bool GetNextShowSQL(StatementType SQLType, QString &PassSQL) const;

    // If the statement's list is only "*", replaces it with the quoted fields of the source, long binary
    // fields last. Returns any other statement unchanged.
    bool GetAllFieldNameSQL(const QString &strPassConnString, const QString &strOrgSQL,
                            QString &strRetSQL) const;

    // Updates the catalogue for the latest entry: fills it if it is empty, and marks the part fields if the
    // entry has any. Returns false if the connection can't be opened or the fields of a statement can't be
    // read.
    bool GetCurrSQLFieldsStatus(const QString &PassConnString = {});

    // Derives other statements from this one. Null if it is empty or its engine is unknown; then, and if
    // Derivation::isTextWork says so, statements are derived as plain text.
    std::shared_ptr<const Derivation> DerivationOf(const QString &statement) const;
    // The same, but null if this step can be done as plain text.
    std::shared_ptr<const Derivation> DerivationOf(const QString &statement, DerivationStep step) const;
    // The same as the first, and knows the fields of a star even if the statement can be derived without
    // them.
    std::shared_ptr<const Derivation> DerivationWithFields(const QString &statement) const;

    // Why this step can't be applied to the latest entry, as a text for the user; empty if it can.
    QString WhyNot(DerivationStep step) const;
    // Why the records of a statement can't be sorted by a field of its result (from 0), nor its values be
    // listed, as a text for the user; empty if nothing is known against it. The database is asked once about
    // types that its driver can't name.
    QString WhyNotSorted(const QString &statement, qsizetype column) const;
    // For all of its fields.
    QStringList WhyNotSorted(const QString &statement) const;

    // Why the latest entry can't be shown with all fields, nor with others of them, as a text for the user;
    // empty if it can.
    QString WhyNoAllFields() const;

    // Why the latest entry can't be shown with its part fields, as a text for the user; empty if it can or
    // has none.
    QString WhyNoPartFields() const;

    // The name to use in a condition for a column (0-based) of a result that was opened with `shownStatement`
    // and has these fields. Distinguishes columns with equal names. Empty if there is no such name.
    QString GetColumnRealName(const QString &shownStatement, const QStringList &shownNames,
                              qsizetype column) const;
    // What the filter dialog offers instead of a table's fields; empty for a simple statement of one table.
    std::optional<FilteredResult> GetFilteredResult() const;

    // The existing condition of a statement, for the rows of GetFilteredResult() or of its table.
    QString GetConditionOf(const QString &statement) const;
    // The name of a catalogue field in conditions; empty if the caller that builds the condition decides.
    QString GetConditionName(const clsDataField &field) const;

    // Whether a condition on the latest entry can use this field of the catalogue.
    bool CanName(const clsDataField &field) const;

    // How the engine reads strings and names; the standard way while the engine is unknown.
    Dialect UsedDialect() const { return dialectOf(m_database, engineOf(m_connString)); }

    // `shown`, which was derived from `all` or from some of its fields, with all of them.
    QString WithAllFieldsOf(const Derivation &shown, const Derivation &all) const;

    // A statement derived from the latest entry with other fields: sorted by all terms of the last sort that
    // these fields allow, not only by those that the latest entry could keep.
    QString WithLastSort(const QString &statement) const;

    // Whether conditions and sorts can use only the shown fields, and not the other fields of `all`.
    bool NamesShownAlone(const Derivation &all) const;

    // Whether the shown fields are all that can be used of a statement, so that it must be opened even where
    // a result with more fields is open: with DISTINCT, other fields mean other rows.
    bool IsShownAlone(const QString &statement) const;

    // The names in the result of `all` of the fields that a part statement means; none if it lacks one. No
    // value if they are those of the part statement.
    std::optional<QStringList> PartNames(const QString &all, const QString &partStatement) const;

    // The start of a statement with chosen fields, as accepted by AddCurrentSQL for the part fields.
    QString GetFieldsStatement(const QString &statement) const;

    // The statement with this sort, unless it is already sorted or either text is empty.
    QString Sorted(const QString &statement, const QString &sortList) const;

    bool UpdateSelPartFields(const QString &strPassPartFields);
    bool UpdateSelSortFields(const QString &strPassSortFields);

    QString GetSelFieldRealName(const QString &strFieldName) const;
    bool IsSelFieldPartField(const QString &strFieldName) const;
    // For each field of the catalogue, whether it is a part field. Of fields with the same name, only the
    // chosen one if it is known, otherwise all.
    QList<bool> PartFields() const;
    // For each field of a statement that was derived from the latest entry's, what a list has for it, where
    // several of the entry's fields share a name. Nothing where names are enough or entries can't tell.
    QStringList EntriesOfEqualNames(const QString &statement) const;
    // Marks the part fields. Does nothing if the number differs from that of the catalogue.
    void SetPartFields(const QList<bool> &areParts);
    // How many fields the latest entry shows. Returns false if there is no entry.
    bool GetCurrShowFieldsCount(qint32 &PassCount) const;

    qsizetype Count() const { return m_entries.Count(); }
    // Null if there is none. The pointer is valid until the history changes.
    clsShowSQLSentence *Item(qsizetype position);
    clsShowSQLSentence *Item(const QString &key) { return Item(m_entries.PositionOf(key)); }
    const clsShowSQLSentence *Item(qsizetype position) const;
    const clsShowSQLSentence *Item(const QString &key) const { return Item(m_entries.PositionOf(key)); }
    // Does nothing if there is no such entry.
    void Remove(qsizetype position) { m_entries.Remove(position); }
    void Remove(const QString &key) { Remove(m_entries.PositionOf(key)); }
    // Clears the history, the catalogue and all texts, and restarts the keys.
    bool Clear();

    const_iterator begin() const { return m_entries.begin(); }
    const_iterator end() const { return m_entries.end(); }

private:
    QString WithSort(const QString &statement, const QString &sortList) const;
    QString WhyNotSorted(const QString &statement, const std::vector<SourceField> &fields,
                         qsizetype column) const;
    std::shared_ptr<const Derivation> DerivationOf(const QString &statement,
                                                   const std::vector<SourceField> &fields,
                                                   const QString &connectionString) const;
    std::shared_ptr<const Derivation>
    WithAllFieldsInside(const std::shared_ptr<const Derivation> &shown) const;
    bool NamesByItself(const Derivation &all) const;
    const clsShowSQLSentence *Latest() const { return Item(Count()); }
    std::optional<SQLSentence> SplitLatest() const;
    QString WithFieldsOf(const QString &statement, const QString &fieldStatement) const;
    QString WithPlaces(const std::shared_ptr<const Derivation> &shown, const QList<qsizetype> &places) const;
    bool CanShowFieldsOf(const QString &partStatement) const;
    bool StepBackTo(qsizetype position, QString &PassFilter, QString *PassKey);
    bool BringInStepWith(const clsShowSQLSentence &entry, const QString &connectionString);
    std::optional<QList<qsizetype>> PlacesOf(const QString &all, const QString &partStatement) const;
    bool ArePartsNamed(const QString &all, const QString &partStatement) const;
    bool MarkPlaces(const QString &all, const QString &partStatement);
    bool FillCatalogue(const QString &connectionString, const QString &statement);
    void WriteCatalogueAsText(const QString &statement);
    EngineMode engineOf(const QString &connectionString) const;

    FieldReader *m_reader = nullptr;
    AllDBType m_database = dbAccess;
    KeyedList<clsShowSQLSentence> m_entries{QStringLiteral("ForDel")};
    colDataFields m_catalogue;
    bool m_isPartKnownByPlace = false; // not only by name
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
