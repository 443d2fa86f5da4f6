#include "export/WriteRecords.h"

#include "ado/Error.h"
#include "ado/rows/RowReader.h"
#include "export/ExportTexts.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <optional>

namespace KOVAVSFDataGridLib {

namespace {

constexpr qint64 rowsBetweenLooks = 64;

class Records
{
public:
    Records(const ADODB::Recordset &recordset, const ExportColumns &columns)
        : m_reader(recordset, fieldsOf(columns))
    {
    }
    // Null if the record was deleted.
    const std::vector<ADODB::RawValue> *find(qint64 record) { return m_reader.read(record); }
    const std::vector<ADODB::RawValue> &read(qint64 record)
    {
        const std::vector<ADODB::RawValue> *const cells = find(record);
        if (!cells)
            throw ADODB::Error(ADODB::adErrNoCurrentRecord, ExportTexts::RecordGone);
        return *cells;
    }

private:
    static int fieldsOf(const ExportColumns &columns)
    {
        int fields = 0;
        for (const ExportColumn &column : columns)
            fields = std::max(fields, column.field + 1);
        return fields;
    }

    ADODB::RowReader m_reader;
};

// Some of the records by this thread, and those that follow them by another one meanwhile. This thread also
// writes what the other one made before. The other one has nothing to read while `shouldContinue` is asked,
// which may let the host change the recordset.
class TwoThreads
{
public:
    TwoThreads(const ADODB::Recordset &recordset, const ExportColumns &columns, RecordWriter &writer,
               RowTexts &texts)
        : m_own(recordset, columns), m_others(recordset, columns), m_writer(writer), m_texts(texts)
    {
    }

    // Takes the next records of those up to `last` and answers how many.
    qint64 write(qint64 first, qint64 last)
    {
        const qint64 own = std::min(std::max(m_portion * m_ownShare / 100, least), last - first + 1);
        const qint64 begin = first + own;
        const qint64 end = std::min(begin + m_portion - 1, last);
        // Its end waits for the thread, whatever is thrown here.
        auto others =
            std::async(std::launch::async | std::launch::deferred, [&] { return append(begin, end); });
        writeOthers();
        for (qint64 record = first; record < begin; ++record)
            m_writer.row(m_own.read(record));
        const bool waits = others.wait_for(std::chrono::seconds::zero()) != std::future_status::ready;
        m_ownShare = std::clamp(m_ownShare + (waits ? shareStep : -shareStep), shareStep, 100);
        const qint64 appended = others.get();
        m_othersText.swap(m_text);
        if (appended > 0) {
            m_portion =
                std::clamp(appended * wanted / std::max(m_othersText.size(), qsizetype{1}), least, most);
        }
        return own + appended;
    }

    // What the other thread made last.
    void writeOthers()
    {
        m_writer.add(m_othersText);
        m_othersText.resize(0);
    }

private:
    static constexpr qint64 least = 64;
    static constexpr qint64 most = 16384;
    static constexpr qsizetype wanted = qsizetype{1} << 20; // bytes at a time
    static constexpr int shareStep = 2;                     // %

    // Ends early where texts are long, and before a record that is gone.
    qint64 append(qint64 first, qint64 last)
    {
        m_text.resize(0);
        qint64 record = first;
        for (; record <= last && m_text.size() < 2 * wanted; ++record) {
            const auto *const cells = m_others.find(record);
            if (!cells)
                break;
            m_texts.append(m_text, *cells);
        }
        return record - first;
    }

    Records m_own;
    Records m_others;
    RecordWriter &m_writer;
    RowTexts &m_texts;
    QByteArray m_text;       // is being made by the other thread
    QByteArray m_othersText; // was made by it, and follows what has been written
    qint64 m_portion = least;
    int m_ownShare = 80; // % of the other thread's portion, moved until neither waits for the other
};

} // namespace

bool writeRecords(const ADODB::Recordset &recordset, const RecordRange &range, const ExportColumns &columns,
                  RecordWriter &writer, const std::function<bool(qint64)> &shouldContinue)
{
    constexpr qint64 manyRecords = 5000;
    writer.begin(columns);
    const auto texts = range.count() < manyRecords ? nullptr : writer.newRowTexts();
    std::optional<TwoThreads> both;
    if (texts)
        both.emplace(recordset, columns, writer, *texts);
    Records records(recordset, columns);
    for (qint64 record = range.first; record <= range.last;) {
        if (!shouldContinue(record - range.first))
            return false;
        if (both) {
            record += both->write(record, range.last);
            continue;
        }
        const qint64 next = std::min(record + rowsBetweenLooks, range.last + 1);
        for (; record < next; ++record)
            writer.row(records.read(record));
    }
    if (both)
        both->writeOthers();
    writer.end();
    return true;
}

} // namespace KOVAVSFDataGridLib
