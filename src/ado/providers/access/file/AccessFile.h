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
    bool isSystem = false; // an internal table of Access
    QString name;

    // Only for a table.
    quint32 definitionPage() const { return static_cast<quint32>(id & 0xffffff); }
};

// An Access database file, open for reading. libmdb reads the pages and converts the code pages of older
// files. Table definitions are read when the file is opened; rows are read page by page on demand. All
// members can throw Error.
class AccessFile
{
public:
    // Throws 3002 if the file can't be opened, is no Access file, is damaged or encrypted. Throws
    // dbErrAuthFailed if the password is wrong. The password is ignored if the file has none.
    explicit AccessFile(const QString &path, const QString &password = {});
    ~AccessFile();
    Q_DISABLE_COPY_MOVE(AccessFile)

    const std::vector<AccessObject> &objects() const { return m_objects; }
    // The user tables. A table whose definition can't be read is omitted.
    const std::vector<AccessTable> &tables() const { return m_tables; }
    // Empty if there is no such table or it can't be read.
    std::optional<AccessTable> systemTable(QLatin1StringView name) const;

    // See AccessHeader::language().
    quint16 language() const { return m_language; }
    // Whether the format is that of Access 97 or earlier.
    bool isJet3() const;
    qint64 pages() const;
    std::shared_ptr<const AccessPage> page(quint32 number) const;
    // All bytes of a Memo or OLE object. `field` is its field in the row.
    QByteArray longValue(QByteArrayView field) const;
    // Converts the bytes of a text to UTF-8.
    QByteArray text(QByteArrayView bytes) const;

private:
    struct Handle;

    // Joins read the same pages again and again.
    static constexpr quint32 cachedPages = 512;

    std::vector<AccessObject> readObjects() const;
    std::optional<AccessTable> readTable(const QString &name, quint32 definitionPage) const;

    std::unique_ptr<Handle> m_handle;
    quint16 m_language = 0;
    mutable std::vector<std::shared_ptr<const AccessPage>> m_cache{cachedPages}; // at number % cachedPages
    std::vector<AccessObject> m_objects;
    std::vector<AccessTable> m_tables;
};

} // namespace ADODB
