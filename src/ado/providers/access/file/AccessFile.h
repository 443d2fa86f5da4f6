#pragma once

#include "ado/providers/access/file/AccessColumn.h"
#include "ado/providers/access/file/AccessPage.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>
#include <optional>
#include <vector>

namespace ADODB {

// What the file lists: its tables, queries, forms and so on.
struct AccessObject
{
    enum Type : qint64 { Table = 1, Query = 5 };

    qint64 id = 0;
    qint64 type = 0;
    bool isSystem = false; // a table of Access's own
    QString name;

    // Of a table.
    quint32 definitionPage() const { return static_cast<quint32>(id & 0xffffff); }
};

// An Access database file, open for reading. libmdb reads the pages and knows the code pages of older files.
// The definitions of tables are read when the file is opened; rows are read page by page when they are asked
// for. Throws Error.
class AccessFile
{
public:
    // A file that can't be opened, is no Access file, is damaged or encrypted is refused with 3002, another
    // password than the file's with dbErrAuthFailed; a password that a file does not ask for is passed over.
    explicit AccessFile(const QString &path, const QString &password = {});
    ~AccessFile();
    Q_DISABLE_COPY_MOVE(AccessFile)

    const std::vector<AccessObject> &objects() const { return m_objects; }
    // The users' tables. One whose definition can't be read is left out.
    const std::vector<AccessTable> &tables() const { return m_tables; }
    // Nothing when there is no such table or it can't be read.
    std::optional<AccessTable> systemTable(QLatin1StringView name) const;

    // As AccessHeader has it.
    quint16 language() const { return m_language; }
    // Whether it is in the format up to Access 97.
    bool isJet3() const;
    qint64 pages() const;
    std::shared_ptr<const AccessPage> page(quint32 number) const;
    // All bytes of a Memo or OLE object, whose field in the row is given.
    QByteArray longValue(QByteArrayView field) const;
    // The UTF-8 of a text's bytes.
    QByteArray text(QByteArrayView bytes) const;

private:
    struct Handle;

    // Joins come back to the same pages again and again.
    static constexpr quint32 cachedPages = 512;

    std::vector<AccessObject> readObjects() const;
    std::optional<AccessTable> readTable(const QString &name, quint32 definitionPage) const;

    std::unique_ptr<Handle> m_handle;
    quint16 m_language = 0;
    mutable std::vector<std::shared_ptr<const AccessPage>> m_cache{cachedPages}; // by number % cachedPages
    std::vector<AccessObject> m_objects;
    std::vector<AccessTable> m_tables;
};

} // namespace ADODB
