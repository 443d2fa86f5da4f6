#pragma once

#include <QtCore/QStringList>

// The filters and searches that are stored for the user with the other settings.
namespace KOVAVSFDataGridLib {

// The place of stored filters: separate for each key of a host, each database and each table.
struct FilterPlace
{
    QString hostKey;          // may be empty
    QString connectionString; // of the database; the user's login is ignored
    QString table;
};

// In the format of SavedFilters; empty if there are none.
QString readFilters(const FilterPlace &place);
void saveFilters(const FilterPlace &place, const QString &filters);

// Whether the user wants to see conditions as SQL; false by default.
bool readSqlWanted();
void saveSqlWanted(bool isWanted);

// The words of the last searches, newest first.
QStringList readSearchedWords();
void saveSearchedWords(const QStringList &words);

} // namespace KOVAVSFDataGridLib
