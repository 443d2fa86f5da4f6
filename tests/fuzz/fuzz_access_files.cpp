// Access files that somebody damaged: they are read or refused. The input changes bytes of a small sound
// file.
#include "FuzzInput.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "support/AccessWriter.h"

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QVariant>

#include <functional>

using namespace ADODB;
using namespace Qt::StringLiterals;

namespace {

// Either throws an Error or succeeds.
void attempt(const std::function<void()> &action)
{
    try {
        action();
    } catch (const Error &error) {
        KovaTest::Require(!error.Description().isEmpty());
    }
}

QByteArray soundFile()
{
    using enum AccessType;
    KovaTest::AccessWriter writer;
    writer.addTable(u"orders"_s,
                    {{u"id"_s, LongInteger, 0, 0, 0, true},
                     {u"paid"_s, YesNo},
                     {u"price"_s, Currency},
                     {u"amount"_s, Numeric, 0, 18, 4},
                     {u"seen"_s, DateTime},
                     {u"name"_s, Text, 50},
                     {u"guid"_s, Guid}},
                    {{1, true, u"12.5"_s, u"-3.25"_s, u"2024-02-29 23:59:58"_s, u"O'Neil"_s,
                      QByteArray::fromHex("00112233445566778899aabbccddeeff")},
                     {2, false, {}, {}, {}, {}, {}}});
    writer.addTable(
        u"notes"_s, {{u"id"_s, LongInteger}, {u"note"_s, Memo}, {u"picture"_s, OleObject}},
        {{1, u"long "_s.repeated(2000), QByteArray(3000, 'p')}, {2, u"short"_s, QByteArray("b")}});
    return writer.file();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QByteArray sound = soundFile();
    static const QTemporaryDir folder(u"/dev/shm/kova-fuzz-XXXXXX"_s);
    QByteArray bytes = sound;
    // Each change is three bytes of offset and one of value; an offset after the end truncates the file.
    for (std::size_t i = 0; i + 3 < size; i += 4) {
        const qsizetype place = (data[i] << 16 | data[i + 1] << 8 | data[i + 2]) % (sound.size() + 16);
        if (place < bytes.size())
            bytes[place] = static_cast<char>(data[i + 3]);
        else
            bytes.truncate(bytes.size() - data[i + 3]);
    }
    const QString path = folder.filePath(u"fuzz.mdb"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return 0;
    file.write(bytes);
    file.close();
    attempt([&] {
        const auto connection = std::make_shared<Connection>();
        connection->Open(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path);
        for (const char *sql : {"SELECT * FROM orders", "SELECT * FROM notes",
                                "SELECT o.id, n.note FROM orders o INNER JOIN notes n ON o.id = n.id"}) {
            attempt([&] {
                Recordset recordset;
                qint64 steps = 0;
                recordset.SetProgress([&](qint64) { return ++steps < 2000; });
                recordset.Open(QString::fromLatin1(sql), connection);
                for (qint64 row = 1; row <= std::min<qint64>(recordset.RecordCount(), 50); ++row) {
                    for (int column = 0; column < recordset.Fields().Count(); ++column)
                        recordset.CellText(row, column);
                }
            });
        }
    });
    return 0;
}
