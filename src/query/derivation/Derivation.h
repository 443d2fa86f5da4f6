#pragma once

#include "query/derivation/SqlText.h"
#include "query/fields/FieldChooser.h"
#include "query/fields/FieldReader.h"
#include "sql/select/SelectParts.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

// Statements derived from any SELECT, such that the rows are right.
namespace KOVAVSFDataGridLib {

// The rows that a condition is looked for in: SELECT written FROM source, with the prefix in front.
struct FilteredResult
{
    QString prefix;
    QString source;
    QList<OfferedField> fields; // those of the result that a condition can name
    // Of a SELECT of these rows, where a condition can name an alias in it; else "*".
    QString list = QStringLiteral("*");
};

// What a command does to a statement; see Derivation::whyNot.
enum class DerivationStep { Condition, Sort, Fields };

// A term of the sort of a statement that has become a table.
struct OuterTerm
{
    int field = -1; // of the table, from 0; -1 when it sorts by none of them
    QString text;   // empty then, because it can't be written
    bool isDescending = false;
};

// How many fields each star of a list gives, by the star as Derivation::starsToMeasure writes it; 0 for an
// alias of Derivation::aliasesToTell that is no column.
using StarSizes = QHash<QString, qsizetype>;

// Derives from one statement. There are three kinds of statements:
//
// simple  SELECT list FROM … [WHERE …] [ORDER BY …] with plain names in its list, all of them different,
// whose
//         keywords can be found as SqlText.h does it. Such statements are derived from as plain text.
// open    the same clauses, but with DISTINCT, aliases, expressions, equal names or sub-selects. Conditions
// and sorts
//         name a field by its value, so that the statement stays one over its tables and its rows can still
//         be written back.
// closed  all others: a condition on their result needs them as a table, `SELECT * FROM (…) AS Q`.
//
// Statements are as joinStatementLines leaves them. In what is derived from an open or closed
// statement, the words FROM, WHERE and ORDER BY of inner SELECTs follow a line break, so that SqlText.h finds
// only the outer ones.
class Derivation
{
public:
    // `fields` are those of the statement's result, in its order; none when they can't be read. `sizes` are
    // needed where starsToMeasure() or aliasesToTell() asks for them.
    Derivation(const QString &statement, const std::vector<SourceField> &fields, const Dialect &dialect,
               const StarSizes &sizes = {});

    // The stars of the list, where only the database can say which of them gives a field; a field is not
    // known by its table then. The first fields of a statement of one star are that star's.
    QStringList starsToMeasure() const;
    // What the condition names and the list has as an alias: the alias is meant unless the sources have a
    // column of that name, and then what is derived from the statement must keep it.
    QStringList aliasesToTell() const;
    // The star, or the alias as a column, alone.
    QString statementOfStar(const QString &star) const;

    bool isSimple() const { return m_kind == Kind::Simple; }
    // Whether plain text work takes this step rightly: with a simple statement, unless the list changes and
    // the sort counts its entries.
    bool isTextWork(DerivationStep step) const;

    // Whether it has a sort of its own.
    bool isSorted() const { return !m_parts.order.isEmpty(); }
    // Whether only the result's fields tell what kind it is: a star can bring equal names from several
    // tables.
    bool needsFields() const;
    // Whether what is derived from it has it as a table, and the terms of its sort as they are written
    // outside of that.
    bool isTable() const { return m_kind == Kind::Closed; }
    std::vector<OuterTerm> outerTerms() const;
    // Whether its list leaves rows out, so that other fields mean other rows.
    bool isDistinct() const { return m_parts.isDistinct && !m_parts.isDistinctOn; }
    // Whether a choice of fields stays a statement of this form, with TOP, say, before its list, and is the
    // table of what is derived from it, so that no other fields can be named there.
    bool hasListAsTable() const { return m_kind == Kind::Closed && keepsListWords(); }
    // The SELECT in brackets from which it selects; empty when it selects from something else.
    QString table() const;
    // For each field of the result, its name.
    const QStringList &names() const { return m_names; }
    // Whether it selects from more than one table.
    bool isJoined() const { return m_parts.sources.size() > 1; }

    // For each field of the result, what a condition or a sort writes; empty where no name is unmistakable.
    const QStringList &written() const { return m_written; }
    // For each field of the result, what a SELECT list writes.
    const QStringList &listed() const { return m_listed; }

    // Why this step isn't possible, for a person to read; empty when it is.
    QString whyNot(DerivationStep step) const;

    // The statement with one more condition, with this sort instead of its own (an empty one removes it),
    // with these list entries out of listed(), and without conditions, grouping kept. Empty when whyNot() has
    // a reason.
    QString withCondition(const QString &condition) const;
    QString withSort(const QString &sortList) const;
    QString withFields(const QStringList &listEntries) const;
    // The fields of these names from the statement as a table.
    QString asTableWith(const QStringList &names) const;
    QString withoutConditions() const;

    // Whether this statement was derived from `other` as a table, and the same over another table instead,
    // without conditions.
    bool hasAsTable(const Derivation &other) const;
    QString withSource(const Derivation &other) const;
    // All fields of `other`, which selects the same rows as table(), under the conditions and the sort of
    // this statement.
    QString withTable(const Derivation &other) const;

    // The statement with the fields of `fieldStatement`, which selects from the same tables: as they are
    // listed there, or, where this statement is derived from that one as a whole, by their names. Empty when
    // that can't be done.
    QString withFieldsOf(const Derivation &fieldStatement) const;

    // What the list of this statement has for the fields of another one, which may lack its aliases. Empty
    // when it hasn't got one of them.
    QStringList listedFor(const Derivation &part) const;

    // What this statement's fields are called in the list of one that was derived from it: as listed(), or,
    // where that one has this as a table, by their names.
    const QStringList &listedIn(const Derivation &derived) const;

    // The fields of this statement as a statement that withFieldsOf() takes: without conditions and sort.
    QString fieldsStatement() const;

    // What follows FROM, and what has to stand in front of SELECT, in a statement over the same rows before
    // any condition: SELECT DISTINCT written() FROM source().
    QString source() const;
    QString prefix() const;
    // The condition of the statement's own WHERE over source(); empty when there is none.
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
    QString equalName() const; // a name that several fields have; empty when there is none
    // The clauses that the steps work on: those of this statement, or of one that has it as a table.
    SQLSentence base() const;
    QString asTable() const;
    QString listText() const;
    QString outerSort() const;
    // Whether a term of the sort is found by the list: a position, an alias, or a name that isn't enough for
    // one of the sources.
    bool meansEntry(const SelectParts::Item &term) const;
    QString stableSort() const;
    int fieldOfTerm(const SelectParts::Item &term) const;
    QString sortableTerms(const QString &sortList) const;
    qsizetype fieldFor(const QString &value, const QString &name) const;
    QString sortWithin(const QStringList &entries) const;
    QString valueOf(int field) const;
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
    QHash<QString, int> m_countOfName; // by the name in one letter case
    QStringList m_written;
    QStringList m_listed;
    std::vector<int> m_itemOfField; // the list entry that gives the field
    QStringList m_tableOfField; // how a field of a star is told apart from others of its name; can be empty
    bool m_isPlaced = true;     // whether each field has its entry
    bool m_isListKnown = true;  // whether the list can have given these fields
};

} // namespace KOVAVSFDataGridLib
