#pragma once

#include "ado/providers/access/file/AccessColumn.h"

#include <QtCore/QByteArray>
#include <QtCore/QVariant>

#include <vector>

namespace KovaTest {

// A column of a table to be written. `size` is in characters for Text and in bytes for Binary.
struct AccessField
{
    QString name;
    ADODB::AccessType type;
    int size = 0;
    int precision = 0; // for Numeric
    int scale = 0;
    bool isKey = false;
};

// Creates Access files (in the format of Access 2000) for tests, because no library here can write them:
// tables without the indices, relations and forms that Access itself would add.
class AccessWriter
{
public:
    AccessWriter();

    // A value is a number, text or bytes; for Numeric its text, for DateTime the text yyyy-MM-dd HH:mm:ss,
    // for GUID its 16 bytes. An invalid QVariant becomes Null.
    void addTable(const QString &name, const std::vector<AccessField> &fields,
                  const QList<QVariantList> &records);
    // Adds an object other than a table. Type 5 is a saved
    // query, whose parts are in a table MSysQueries.
    void addObject(qint32 id, qint16 type, const QString &name) { m_objects.append({id, 0, name, type, 0}); }
    // A password that Access would ask for.
    void setPassword(const QString &password) { m_password = password; }
    // The Windows language ID that defines the sort order of texts.
    void setLanguage(quint16 language) { m_language = language; }
    // Encrypts each page (in a file of the .mdb kind); 0 for no encryption.
    void setKey(quint32 key) { m_key = key; }
    void setVersion(quint8 version) { m_version = version; }

    QByteArray file() const;

private:
    using Pages = std::vector<QByteArray>;

    int newPage(const QByteArray &content = {});
    quint32 longValue(const QByteArray &value);
    QByteArray field(const AccessField &field, const QVariant &value);
    QByteArray row(const std::vector<AccessField> &fields, const QVariantList &values);
    std::vector<int> dataPages(int definition, const std::vector<QByteArray> &rows);
    quint32 usageMap(const std::vector<int> &pages);
    void define(int page, const std::vector<AccessField> &fields, const QList<QVariantList> &records);
    QByteArray header() const;

    Pages m_pages;
    QList<QVariantList> m_objects;
    QString m_password;
    quint16 m_language = 0x0409;
    quint32 m_key = 0;
    quint8 m_version = 1;
};

} // namespace KovaTest
