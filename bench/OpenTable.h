#pragma once

#include <QtCore/QByteArray>

#include <chrono>
#include <ctime>

class QSqlQueryModel;

namespace ADODB {
class Recordset;
}

// A table in a SQLite file, and the ways to read it whole. Unix only.
struct BenchTable
{
    QByteArray path;
    qint64 rows = 0;
    int columns = 0;
};

inline constexpr const char *wholeTable = "SELECT * FROM sales";

struct Measurement
{
    double seconds = 0;          // as the clock says
    double processorSeconds = 0; // of all threads
    double peakMegabytes = 0;    // of a child process
};

// Runs from its construction.
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

// Makes the file of a table with these SQL commands.
void makeFile(const QByteArray &path, const QByteArray &script);

// SQLite alone: reads every cell and keeps none.
Measurement readByBareLoop(const BenchTable &table);
void open(ADODB::Recordset &recordset, const BenchTable &table, bool isEditable);
// As a grid opens it: ready for editing, and with a report that looks at nothing.
Measurement openRecordset(const BenchTable &table);

// Qt's own model with all rows.
void fetch(QSqlQueryModel &model, const BenchTable &table);

// Answers what `work` does in a child process, with that one's memory peak.
Measurement inChild(Measurement (*work)(const BenchTable &), const BenchTable &table);
