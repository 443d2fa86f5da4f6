#include "AccessSamples.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStringList>

using namespace Qt::Literals::StringLiterals;

namespace AdoTest {

QString accessSample(const QString &name)
{
    if (const QString folder = qEnvironmentVariable("KOVA_TEST_DATA"); !folder.isEmpty())
        return QFileInfo::exists(folder + u'/' + name) ? folder + u'/' + name : QString();
    QDir folder(QStringLiteral(KOVA_SOURCE_DIR));
    do {
        const QString path = folder.filePath(u"shared/data/"_s + name);
        if (QFileInfo::exists(path))
            return path;
    } while (folder.cdUp());
    return {};
}

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
