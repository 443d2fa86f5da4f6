#include "export/WriteRecords.h"

#include "ado/Error.h"
#include "ado/rows/RowReader.h"
#include "export/ExportTexts.h"

#include <QtCore/QScopeGuard>

#include <algorithm>
#include <array>
#include <condition_variable>
#include <future>
#include <mutex>
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

// Two threads make the texts of the records, a portion at a time; each takes the next one when it is ready,
// so that neither waits for the other. This thread also writes the texts in their order, which comes first.
// The few texts are small, so that they are still in the processor's cache when they are written. The other
// thread reads nothing while `shouldContinue` is asked, which may let the host change the recordset.
class TwoThreads
{
public:
    TwoThreads(const ADODB::Recordset &recordset, const ExportColumns &columns, RecordWriter &writer)
        : m_own(recordset, columns, writer.newRowTexts()),
          m_others(recordset, columns, writer.newRowTexts()),
          m_writer(writer)
    {
    }

    // Writes the next records of those up to `last` and answers how many.
    qint64 write(qint64 first, qint64 last)
    {
        m_first = first;
        m_last = last;
        m_begun = m_written = 0;
        m_count = std::min((last - first) / m_size + 1, m_portionsAtOnce);
        // Its end waits for the thread, which therefore is stopped before, whatever is thrown.
        auto others = std::async(std::launch::async | std::launch::deferred, [this] { makeOthers(); });
        const auto stopped = qScopeGuard([this] { stop(); });
        qint64 records = 0;
        qint64 bytes = 0;
        bool isWhole = true; // else what follows is made again
        for (qint64 i = 0; i < m_count && isWhole; ++i) {
            const Portion &portion = madePortion(i);
            m_writer.add(portion.text);
            records += portion.records;
            bytes += portion.text.size();
            isWhole = portion.records == m_size || first + records > last;
            setWritten(i + 1);
        }
        stop();
        others.get(); // what it has thrown
        if (records == 0)
            throw ADODB::Error(ADODB::adErrNoCurrentRecord, ExportTexts::RecordGone);
        const qint64 recordSize = std::max(bytes / records, qint64{1});
        m_size = std::clamp(wanted / recordSize, qint64{1}, mostRecords);
        m_portionsAtOnce = std::max(wantedAtOnce / (m_size * recordSize), qint64{2});
        return records;
    }

private:
    static constexpr qint64 mostRecords = 4096;
    static constexpr qint64 wanted = qint64{64} << 10;      // bytes of a portion
    static constexpr qint64 wantedAtOnce = qint64{8} << 20; // bytes before the caller is asked again

    struct Portion
    {
        QByteArray text;
        qint64 records = 0; // fewer where texts are long, or a record is gone
        bool isMade = false;
    };
    struct Maker
    {
        Maker(const ADODB::Recordset &recordset, const ExportColumns &columns,
              std::unique_ptr<RowTexts> rowTexts)
            : records(recordset, columns), texts(std::move(rowTexts))
        {
        }
        Records records;
        const std::unique_ptr<RowTexts> texts;
    };

    Portion &portionAt(qint64 index)
    {
        return m_portions[static_cast<std::size_t>(index) % m_portions.size()];
    }
    // Whether there is a portion to take whose place is free.
    bool hasNext() const
    {
        return m_begun < m_count && m_begun < m_written + static_cast<qint64>(m_portions.size());
    }

    void makeOthers()
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_changed.wait(lock, [this] { return m_begun >= m_count || hasNext(); });
            if (m_begun >= m_count)
                return;
            makeNext(m_others, lock);
        }
    }

    const Portion &madePortion(qint64 index)
    {
        std::unique_lock lock(m_mutex);
        const Portion &portion = portionAt(index);
        while (index >= m_begun || !portion.isMade) {
            if (hasNext())
                makeNext(m_own, lock);
            else
                m_changed.wait(lock);
        }
        return portion;
    }

    // Without the lock meanwhile.
    void makeNext(Maker &maker, std::unique_lock<std::mutex> &lock)
    {
        const qint64 index = m_begun++;
        Portion &portion = portionAt(index);
        portion.records = 0;
        portion.isMade = false;
        lock.unlock();
        const auto made = qScopeGuard([&] { // whatever is thrown
            lock.lock();
            portion.isMade = true;
            m_changed.notify_one();
        });
        if (portion.text.capacity() > 4 * wanted)
            portion.text.clear(); // else the room is kept
        portion.text.resize(0);
        const qint64 begin = m_first + index * m_size;
        const qint64 end = std::min(begin + m_size - 1, m_last);
        for (qint64 record = begin; record <= end && portion.text.size() < 2 * wanted; ++record) {
            const auto *const cells = maker.records.find(record);
            if (!cells)
                break;
            maker.texts->append(portion.text, *cells);
            ++portion.records;
        }
    }

    void setWritten(qint64 written)
    {
        const std::lock_guard lock(m_mutex);
        m_written = written;
        m_changed.notify_one();
    }
    // No portion is begun any more.
    void stop()
    {
        const std::lock_guard lock(m_mutex);
        m_count = 0;
        m_changed.notify_one();
    }

    Maker m_own;
    Maker m_others;
    RecordWriter &m_writer;
    qint64 m_first = 0;
    qint64 m_last = 0;
    qint64 m_size = 64; // records of a portion
    qint64 m_portionsAtOnce = 2;

    std::mutex m_mutex;
    std::condition_variable m_changed;
    // These are under the mutex. A portion itself is its maker's, and then this thread's.
    std::array<Portion, 6> m_portions; // those not written yet, in turn
    qint64 m_begun = 0;
    qint64 m_written = 0;
    qint64 m_count = 0;
};

} // namespace

bool writeRecords(const ADODB::Recordset &recordset, const RecordRange &range, const ExportColumns &columns,
                  RecordWriter &writer, const std::function<bool(qint64)> &shouldContinue)
{
    constexpr qint64 manyRecords = 5000;
    writer.begin(columns);
    std::optional<TwoThreads> both;
    if (range.count() >= manyRecords && writer.newRowTexts())
        both.emplace(recordset, columns, writer);
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
    writer.end();
    return true;
}

} // namespace KOVAVSFDataGridLib
