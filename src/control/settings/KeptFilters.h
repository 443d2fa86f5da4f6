#pragma once

#include <QtCore/QStringList>

// The filters and searches that are kept for the user beside the other settings.
namespace KOVAVSFDataGridLib {

// Where filters are kept: each key of a host, each database and each table has its own.
struct FilterPlace
{
    QString hostKey;          // may be empty
    QString connectionString; // of the database; who logs in doesn't matter
    QString table;
};

// As SavedFilters writes them; empty when there are none.
QString readFilters(const FilterPlace &place);
void saveFilters(const FilterPlace &place, const QString &filters);

// Whether the user wants to see conditions as SQL; not at first.
bool readSqlWanted();
void saveSqlWanted(bool isWanted);

// The words that were searched for last, the newest first.
QStringList readSearchedWords();
void saveSearchedWords(const QStringList &words);

} // namespace KOVAVSFDataGridLib
