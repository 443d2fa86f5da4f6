#pragma once

#include <QtCore/QByteArray>

#include <chrono>
#include <ctime>

class QSqlQueryModel;

namespace ADODB {
class Recordset;
}

// A table in a SQLite file, and several ways to read all of it. Unix only.
struct BenchTable
{
    QByteArray path;
    qint64 rows = 0;
    int columns = 0;
    bool showsKey = false; // a column is the number of the row
};

inline constexpr const char *wholeTable = "SELECT * FROM sales";
inline constexpr const char *withKey = "SELECT *, rowid FROM sales";

inline constexpr double bytesPerMegabyte = 1'000'000;

struct Measurement
{
    double seconds = 0;          // elapsed time
    double processorSeconds = 0; // of all threads
    double megabytes = 0;        // of the process, with what was read
    double peakMegabytes = 0;    // of a child process
};

// Starts on construction.
class Stopwatch
{
public:
    Stopwatch() : m_start(std::chrono::steady_clock::now()), m_processor(std::clock()) {}
    Measurement read() const;

private:
    std::chrono::steady_clock::time_point m_start;
    std::clock_t m_processor;
};

[[noreturn]] void stop(const char *why);

// Creates a SQLite file with these SQL commands.
void makeFile(const QByteArray &path, const QByteArray &script);

// SQLite alone: reads every cell and stores none.
Measurement readByBareLoop(const BenchTable &table);
// The same, with the number of each row, which a recordset needs for writing it back.
Measurement readWithKey(const BenchTable &table);
void open(ADODB::Recordset &recordset, const BenchTable &table, bool isEditable);
// As a grid opens it: ready for editing, with a progress callback that does nothing.
Measurement openRecordset(const BenchTable &table);

// Reads all rows into Qt's own model.
void fetch(QSqlQueryModel &model, const BenchTable &table);

// Returns the result of `work` in a child process, with the memory peak of that process.
Measurement inChild(Measurement (*work)(const BenchTable &), const BenchTable &table);
