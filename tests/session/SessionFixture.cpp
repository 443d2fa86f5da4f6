#include "SessionFixture.h"

#include "query/SharedValues.h"
#include "query/clsFilterManagement.h"
#include "session/LoadResult.h"

#include <utility>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace KovaTest {

void PlainWindow::showRecords(std::shared_ptr<ADODB::Recordset> recordset, qint64 first, int count)
{
    rows.clear();
    currentRow = count > 0 ? 1 : 0;
    if (!recordset)
        return;
    headings.clear();
    const int fields = recordset->Fields().Count();
    for (int i = 0; i < fields; ++i)
        headings.append(recordset->Fields().Item(i).Name());
    for (qint64 record = first; record < first + count; ++record) {
        QStringList texts;
        for (int i = 0; i < fields; ++i)
            texts.append(recordset->CellText(record, i));
        rows.append(texts.join(u' '));
    }
}

std::vector<int> PlainWindow::shownColumns() const
{
    std::vector<int> shown;
    for (int c = 1; c < Cols(); ++c) {
        if (ColWidth(c) != 0)
            shown.push_back(c);
    }
    return shown;
}

QStringList PlainWindow::shownFields() const
{
    QStringList shown;
    for (int c = 1; c < Cols(); ++c) {
        if (ColWidth(c) != 0)
            shown.append(headings.at(c - 1));
    }
    return shown;
}

std::optional<QString> PlainUser::ChooseVisibleFields(const QString &,
                                                      const QList<KOVAVSFDataGridLib::OfferedField> &,
                                                      const QStringList &)
{
    std::exchange(meanwhile, [] {})();
    return fields;
}

std::optional<QString> PlainUser::ChooseSort(const QString &, const QList<KOVAVSFDataGridLib::OfferedField> &,
                                             const QStringList &)
{
    std::exchange(meanwhile, [] {})();
    return sort;
}

bool PlainUser::ask(const QString &, const QString &)
{
    std::exchange(meanwhile, [] {})();
    return says;
}

QString PlainUser::askCondition(const ConditionRequest &request)
{
    std::exchange(meanwhile, [] {})();
    if (!built.isEmpty()) {
        request.built = built;
        request.builtCondition = condition;
    }
    return condition;
}

std::optional<ValuesAnswer> PlainUser::askValues(const ValuesRequest &)
{
    return values;
}

std::optional<FindAnswer> PlainUser::askWords(const colDataFields &)
{
    std::exchange(meanwhile, [] {})();
    return FindAnswer{words, false, {}};
}

SessionFixture::SessionFixture()
    : database(u"CREATE TABLE T (ID INTEGER PRIMARY KEY, Name TEXT, Price REAL);"
               "INSERT INTO T VALUES (1,'Tea',3.5),(2,'Rice',2),(3,'Salt',1)"_s)
{
    SharedValues::instance() = {};
}

bool SessionFixture::load(const QString &statement, const QString &part)
{
    session->texts.connectionString = database.connectionString();
    session->texts.sqlShow = statement;
    session->texts.sqlPartDisplay = part;
    return loadResult(*session);
}

QString SessionFixture::statement() const
{
    QString latest;
    session->history().GetLatestSQL(latest);
    return latest.simplified();
}

} // namespace KovaTest
