#include "AccessSamples.h"

#include <QtCore/QStringList>

using namespace Qt::Literals::StringLiterals;

namespace AdoTest {

std::shared_ptr<ADODB::Connection> openAccess(const QString &path)
{
    auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path);
    return connection;
}

std::shared_ptr<ADODB::Recordset> query(const std::shared_ptr<ADODB::Connection> &connection,
                                        const QString &sql)
{
    auto recordset = std::make_shared<ADODB::Recordset>();
    recordset->Open(sql, connection, ADODB::adOpenKeyset, ADODB::adLockOptimistic, ADODB::adCmdText);
    return recordset;
}

QString cells(const std::shared_ptr<ADODB::Connection> &connection, const QString &sql)
{
    const auto recordset = query(connection, sql);
    QStringList records;
    for (qint64 record = 1; record <= recordset->RecordCount(); ++record) {
        QStringList texts;
        for (int column = 0; column < recordset->Fields().Count(); ++column)
            texts += recordset->CellText(record, column);
        records += texts.join(u'|');
    }
    return records.join(u'\n');
}

} // namespace AdoTest
