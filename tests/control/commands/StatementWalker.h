#pragma once

#include "Hands.h"

#include "query/support/CaseFile.h"

#include <optional>
#include <random>
#include <vector>

namespace KovaTest {

// A user who filters, sorts, chooses fields and steps back, beside a model that knows rows alone.
class StatementWalker
{
public:
    using Rows = std::vector<QStringList>;

    // `letters`: whether the engine's LIKE is case-sensitive.
    StatementWalker(Hands &hands, std::mt19937 &random, Qt::CaseSensitivity letters = Qt::CaseInsensitive)
        : m_hands(hands), m_random(random), m_letters(letters)
    {
    }

    // The statement of the case with the host's sort, if it has one.
    static QString loadedBy(const Case &one);
    // Loads the case with its part statement, if it has one. The database answers loadedBy() with these
    // fields and rows. `whole`: the rows without its conditions; no value if unknown.
    void begin(const Case &one, const QStringList &names, const Rows &rows, const std::optional<Rows> &whole);
    enum class Step { CellFilter, WordFilter, Sort, Fields, All, Part, Whole, Origin, Back };

    // Takes this step if it is possible, or any one, and compares the grid with the model. A failure lists
    // the steps since the load.
    void take(Step step);
    void takeAny();

private:
    void compare();
    // What one statement of the history shows.
    struct Shown
    {
        Rows rows;             // with all fields
        QList<qsizetype> part; // the fields chosen last, or those of the host; empty if there are none
        bool isAll = true;
        bool isAsLoaded = true; // in the order of the statement
        int sortedBy = -1;      // the field that the user has sorted by
        bool isDescending = false;
    };

    Shown &top() { return m_shown.back(); }
    void push() { m_shown.push_back(top()); }
    std::size_t pick(std::size_t count);
    QList<qsizetype> shownFields();
    Rows shownRows() const;
    void compareOrder(const Rows &actual, const Rows &expected);

    const char *filterByCell();
    const char *filterByWord();
    const char *sortRows();
    const char *chooseFields();
    const char *showAll();
    const char *showPart();
    const char *showWhole();
    const char *toOrigin();
    const char *back();

    Hands &m_hands;
    std::mt19937 &m_random;
    const Qt::CaseSensitivity m_letters;
    QStringList m_taken; // the steps since the load
    QStringList m_names;
    std::vector<Shown> m_shown; // the history, oldest first
    std::optional<Rows> m_whole;
    bool m_hasFieldChoice = false;
    bool m_isDistinct = false; // equal rows of the shown fields are one
    bool m_isOrdered = false;  // the statement's sort leaves nothing to the database
    bool m_hasPartStatement = false;
    bool m_lacksPart = false; // the host's part statement has a field that the result lacks
};

} // namespace KovaTest
