#pragma once

#include "query/derivation/SqlText.h"
#include "query/fields/FieldChooser.h"
#include "query/fields/FieldReader.h"
#include "sql/select/SelectParts.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <map>
#include <optional>

// Derives statements from any SELECT, so that they return the right rows.
namespace KOVAVSFDataGridLib {

// The rows that a condition is applied to: SELECT <written> FROM <source>, preceded by `prefix`.
struct FilteredResult
{
    QString prefix;
    QString source;
    QList<OfferedField> fields; // the fields that a condition can use
    // Of a SELECT of these rows, where a condition can name an alias in it; else "*".
    QString list = QStringLiteral("*");
};

// How a command changes a statement; see Derivation::whyNot.
enum class DerivationStep { Condition, Sort, Fields };

// One sort term of a statement, for use over its result: as a derived table, for example.
struct OuterTerm
{
    int field = -1; // index in the result; -1 if it sorts by none of its fields
    QString text;   // empty if the term can't be written there
    bool isDescending = false;
};

// The number of fields of each star in a list, by the star as Derivation::starsToMeasure returns it. 0 for an
// alias of Derivation::aliasesToTell that is not a column.
using StarSizes = QMap<QString, qsizetype>;

// Derives from one statement. There are three kinds of statements:
//
// simple  SELECT list FROM … [WHERE …] [ORDER BY …] with plain names in its list, all of them
//         different, and with keywords that SqlText.h can find in the text. Such statements are
//         derived as plain text.
// open    the same clauses, but with DISTINCT, aliases, expressions, equal names or sub-selects.
//         Conditions and sorts name a field by its value, so that the statement stays one over its
//         tables and is not nested in another one. So its rows can
//         still be written back.
// closed  all others: a condition on their result must select from them, `SELECT * FROM (…) AS Q`.
//
// Statements must be those returned by joinStatementLines. In what is derived from an open or closed
// statement, the words FROM, WHERE and ORDER BY of inner SELECTs follow a line break, so that SqlText.h finds
// only the outer ones.
class Derivation
{
public:
    // `fields` are those of the statement's result, in order; empty if they can't be read. `sizes` are needed
    // if starsToMeasure() or aliasesToTell() returns anything.
    Derivation(const QString &statement, const std::vector<SourceField> &fields, const Dialect &dialect,
               const StarSizes &sizes = {});

    // The stars of the list, if only the database can tell which of them a field comes from; its table is
    // then unknown. The first fields of a statementOfStar() are those of its star.
    QStringList starsToMeasure() const;
    // Names in the condition and in expressions of the sort that are also aliases of the list. The alias is
    // meant unless the sources have a column of that name; then a derived statement must keep the name.
    QStringList aliasesToTell() const;
    // A statement that selects only the star, or only the alias as a column.
    QString statementOfStar(const QString &star) const;
    // A statement that the database accepts if it can sort by this field; empty if the field has no name.
    QString statementOfOrder(qsizetype field) const;

    bool isSimple() const { return m_kind == Kind::Simple; }
    // Whether this step can be done as plain text: for simple statements, unless the list changes and the
    // sort refers to its positions.
    bool isTextWork(DerivationStep step) const;

    // Whether it has an ORDER BY.
    bool isSorted() const { return !m_parts.order.isEmpty(); }
    // Whether the kind depends on the fields of the result: a star can return equal names from several
    // tables.
    bool needsFields() const;
    // Whether statements derived from it select from it as a derived table; and the terms of any statement's
    // sort, for use outside such a table.
    bool isTable() const { return m_kind == Kind::Closed; }
    std::vector<OuterTerm> outerTerms() const;
    // Whether it has no sort but its table's, by something that its own result lacks.
    bool isSortedInside() const;
    // The terms of its own sort, so written that they mean the same where the list lacks a field.
    QStringList sortTerms() const;
    // What its sort uses beside the fields of its result, with the names that statements derived from it use.
    QList<OfferedField> sortKeyFields() const;
    // Whether DISTINCT removes rows, so that other fields mean other rows.
    bool isDistinct() const { return m_parts.isDistinct && !m_parts.isDistinctOn; }
    // Whether a choice of fields keeps the form of the statement (for example with TOP before its list) and
    // becomes the table of what is derived from it, so that other fields can't be used there.
    bool hasListAsTable() const { return m_kind == Kind::Closed && keepsListWords(); }
    // The subquery that it selects from; empty if it selects from anything else.
    QString table() const;
    // The name of each field of the result.
    const QStringList &names() const { return m_names; }
    // Whether `other` selects from the same tables, in the same words.
    bool isOverSame(const Derivation &other) const;
    // Whether it selects from more than one table.
    bool isJoined() const { return m_parts.sources.size() > 1; }

    // For each field of the result, its name in conditions and sorts; empty if no name is unambiguous.
    const QStringList &written() const { return m_written; }
    // For each field of the result, its form in a SELECT list.
    const QStringList &listed() const { return m_listed; }

    // Why this step isn't possible, as a text for the user; empty if it is.
    QString whyNot(DerivationStep step) const;

    // The statement with one more condition; with this sort instead of its own (an empty one removes it);
    // with these list entries of listed(); and without conditions, but with its grouping. Empty if whyNot()
    // returns a reason.
    QString withCondition(const QString &condition) const;
    QString withSort(const QString &sortList) const;
    QString withFields(const QStringList &listEntries) const;
    // Selects the fields with these names from the statement as a derived table.
    QString asTableWith(const QStringList &names) const;
    // If conditions or the sort use aliases: a SELECT of this statement as a table. Without them it would not
    // need to be one, but its fields would have other names then. Else empty.
    QString aliasesAsTable() const;

    QString withoutConditions() const;
    // The statement with as many terms of the sort of `other`, from which its fields were chosen, as a
    // DISTINCT of its fields can have. Any other statement unchanged: its sort does not depend on its list.
    QString withSortOf(const Derivation &other) const;

    // Whether this statement was derived from `other` as a table; and the same statement over another table,
    // without conditions.
    bool hasAsTable(const Derivation &other) const;
    QString withSource(const Derivation &other) const;
    // All fields of `other`, which selects the same rows as table(), with the conditions and the sort of this
    // statement.
    QString withTable(const Derivation &other) const;

    // The statement with the fields of `fieldStatement`, which selects from the same tables: as they are
    // listed there or, if this statement was derived from that one as a whole, by their names. Empty if that
    // is impossible.
    QString withFieldsOf(const Derivation &fieldStatement) const;

    // For each field of another statement, its place (from 0) among those of this one: the same column or
    // expression, whatever either of them calls it. A name means a field of this result only if it can't be
    // the name of a column: `part` selects from other tables or from a subquery, or the database rejects it.
    // No value if a field is missing or not the only one.
    std::optional<QList<qsizetype>> placesOf(const Derivation &part, bool isAccepted = true) const;
    // The list entries of this statement for the fields of another one. Empty if one of them is missing.
    QStringList listedFor(const Derivation &part) const;

    // The names of this statement's fields in the list of one derived from it: as in listed() or, if that one
    // has this as a table, by their names. If this one is a table only for its conditions, and the derived
    // one lacks them, the entries of the list.
    const QStringList &listedIn(const Derivation &derived) const;

    // A statement with the fields of this one for withFieldsOf(): without conditions and sort.
    QString fieldsStatement() const;

    // What must follow FROM, and what must precede SELECT, in a statement over the same rows before any
    // condition: SELECT DISTINCT written() FROM source().
    QString source() const;
    QString prefix() const;
    // The condition of the statement's own WHERE, for use over source(); empty if there is none.
    QString condition() const;
    FilteredResult filteredResult() const;

private:
    enum class Kind { Simple, Open, Closed };

    void nameFields(const std::vector<SourceField> &fields, const StarSizes &sizes);
    void nameOpenFields(const std::vector<SourceField> &fields);
    void placeFields(const std::vector<SourceField> &fields, const StarSizes &sizes);
    void dropUnlikelyAliases(const std::vector<SourceField> &fields);
    bool hasAllFields() const;
    QString qualified(const std::vector<SourceField> &fields, std::size_t index) const;
    int countOf(const QString &name) const;
    bool isFoundAsText() const;
    bool hasPlainList() const;
    bool isSourceUnfenced() const;
    QString equalName() const; // a name that several fields have; empty if there is none
    // The clauses that the steps change: those of this statement, or of one that has it as a table.
    SQLSentence base() const;
    QString asTable() const;
    QString tableList() const;
    QString listText() const;
    QString outerSort() const;
    bool losesSort() const;
    QString sortKey(std::size_t term) const;
    QString sortKeys() const;
    QString keyValue(const SelectParts::Item &term) const;
    // Whether a term of the sort is found by the list: a position, an alias, or a name that isn't enough for
    // one of the sources.
    bool meansEntry(const SelectParts::Item &term) const;
    QString stableSort() const;
    QString stableTerm(const SelectParts::Item &term) const;
    // The value, sorted as this term is.
    static QString sortedAs(const SelectParts::Item &term, const QString &value);
    // The fields whose aliases an expression uses, by its tokens.
    std::map<qsizetype, int> aliasesIn(const SelectParts::Item &term) const;
    // Whether a column can have this name there: it is neither qualified nor that of a function.
    bool usesName(qsizetype token, const QString &name) const;
    bool usesName(TextRange range, const QString &name) const;
    bool sortsByExpressionOf(const QString &alias) const;
    bool sortsBySubselectOf(const QString &alias) const;
    static QString asColumn(const QString &alias);
    int fieldOfTerm(const SelectParts::Item &term) const;
    bool isColumn(std::size_t field, const SelectParts::Item &name) const;
    bool mergesOuterColumns() const;
    QString sortableTerms(const QString &sortList) const;
    QStringList namesIn(TextRange range) const;
    QStringList columnOf(qsizetype field) const;
    QList<qsizetype> placesOfValue(const QString &value) const;
    QList<qsizetype> placesOfColumn(const QStringList &column) const;
    qsizetype oneOf(const QList<qsizetype> &places, const QString &name, const QList<qsizetype> &taken) const;
    qsizetype placeOfName(const QString &name) const;
    bool hasTablesOf(const Derivation &other) const;
    bool sortsByConstant(const SelectParts::Item &term) const;
    bool canSortWithin(const SelectParts::Item &term, const QStringList &entries) const;
    QString sortWithin(const QStringList &entries) const;
    bool isDistinctTable() const;
    Derivation distinctTable() const;
    bool canLoseTop() const;
    bool areListed(const QStringList &entries) const;
    // Whether a DISTINCT TOP with these entries alone would take other records, as its sort lacks a field.
    bool losesTop(const QStringList &entries) const;
    QStringList namesOf(const QStringList &entries) const;
    QString valueOf(int field) const;
    QString sortValueOf(int field) const;
    bool keepsListWords() const;
    std::vector<qsizetype> unitedConditions() const;
    bool endsCondition(qsizetype token, int depth) const;
    QString headWith(const QString &list) const;
    QString withWordsApart(TextRange tokens, int fromDepth) const;
    QString withList(const QString &list, const QStringList &entries) const;

    SqlScanner m_sql;
    SelectParts m_parts;
    Dialect m_dialect;
    Kind m_kind = Kind::Closed;
    QStringList m_names;
    std::vector<qint32> m_types;
    QHash<QString, int> m_countOfName; // by case-folded name
    QStringList m_usedAliases;         // those of aliasesToTell() that are meant
    QStringList m_written;
    QStringList m_listed;
    bool m_isListUsed = false;        // by its conditions or a sub-select in its sort: they use its aliases
    bool m_isClosedByAliases = false; // only because of that
    std::vector<int> m_itemOfField;   // the list entry that the field comes from
    QStringList m_tableOfField;       // distinguishes a star's field from others of its name; can be empty
    bool m_isPlaced = true;           // whether the entry of each field is known
    bool m_isListKnown = true;        // whether the list can have these fields
};

} // namespace KOVAVSFDataGridLib
