#pragma once

#include "ado/providers/access/AccessColumn.h"
#include "ado/providers/access/AccessPage.h"

#include <QtCore/QByteArray>

#include <memory>

struct S_MdbTableDef;

namespace ADODB {

// An Access database file, open for reading. Its definitions are read by libmdb when it is opened; rows are
// read page by page when they are asked for. Throws Error.
class AccessFile
{
public:
    // A file that can't be opened, is no Access file, is damaged or encrypted is refused with 3002.
    explicit AccessFile(const QString &path);
    ~AccessFile();
    Q_DISABLE_COPY_MOVE(AccessFile)

    // A table whose definition can't be read is left out.
    const std::vector<AccessTable> &tables() const { return m_tables; }
    const std::vector<AccessTable> &systemTables() const { return m_systemTables; }

    // Whether it is in the format up to Access 97.
    bool isJet3() const;
    void readPage(quint32 number, AccessPage &page) const;
    // All bytes of a Memo or OLE object, whose field in the row is given.
    QByteArray longValue(QByteArrayView field) const;
    // The UTF-8 of a text's bytes.
    QByteArray text(QByteArrayView bytes) const;

private:
    struct Handle;

    void readTables();
    AccessTable readTable(S_MdbTableDef &definition) const;
    std::vector<quint32> rowPages(QByteArrayView usageMap) const;

    std::unique_ptr<Handle> m_handle;
    std::vector<AccessTable> m_tables;
    std::vector<AccessTable> m_systemTables;
};

} // namespace ADODB
