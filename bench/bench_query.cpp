#include "query/colShowSQLSentences.h"
#include "query/conditions/Conditions.h"
#include "query/derivation/Derivation.h"
#include "query/derivation/SqlText.h"

#include <QtCore/QElapsedTimer>

#include <algorithm>
#include <cstdio>

// The cost of the query model at sizes where it could matter.

using namespace KOVAVSFDataGridLib;

namespace {

// Reports the best of several runs, in milliseconds.
template<typename Work>
void Measure(const char *what, Work work)
{
    double best = 1e9;
    for (int run = 0; run < 7; ++run) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::min(best, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::printf("%-70s %9.3f ms\n", what, best);
}

QString FieldName(int number)
{
    return QStringLiteral("Field number %1 ").arg(number, 4).repeated(4).trimmed();
}

QStringList FieldNames(int count)
{
    QStringList names;
    for (int number = 0; number < count; ++number)
        names.append(FieldName(number));
    return names;
}

// A statement of about 100,000 characters for 1,000 fields.
QString LongStatement(const QStringList &names)
{
    QStringList written;
    for (const QString &name : names)
        written.append(QStringLiteral("[Order Details of the year].[%1]").arg(name));
    return QStringLiteral("SELECT %1 FROM [Order Details of the year] WHERE ID > 0 ORDER BY ID")
        .arg(written.join(u','));
}

class NamesReader : public FieldReader
{
public:
    explicit NamesReader(const QStringList &names)
    {
        for (const QString &name : names)
            m_fields.push_back({name, 202});
    }
    bool Open(const QString &) override { return true; }
    std::optional<std::vector<SourceField>> Read(const QString &, const QString &) override
    {
        return m_fields;
    }

private:
    std::vector<SourceField> m_fields;
};

// The catalogue lookups for arranging columns: width and mark of each column's field, by its heading.
void LayOutColumns(colDataFields &catalogue, const QStringList &names)
{
    catalogue.AddFieldsByCol(names);
    catalogue.SetPartFieldStatusByCol(names);
    for (const QString &name : names) {
        QString key;
        catalogue.GetSelFieldKey(name, key);
        catalogue.Update(key, [](clsDataField &field) { field.FieldWidth = 960; });
        if (!catalogue.IsSelFieldPartField(name) || catalogue.Item(key)->FieldWidth != 960)
            std::puts("a column lost its field");
    }
}

void MeasureStatements()
{
    const QStringList names = FieldNames(1000);
    const QString statement = LongStatement(names);
    std::vector<TypedField> fields;
    for (const QString &name : names)
        fields.push_back({name, 202});
    qInfo("statement of %s characters, %s fields", qPrintable(QString::number(statement.size())),
          qPrintable(QString::number(names.size())));

    Measure("statement taken apart for the first time, its fields named", [&] {
        const std::vector<SourceField> sources = NamesReader(names).Read({}, {}).value();
        if (!Derivation(statement, sources, dialectOf(dbAccess, Engine::Access)).isSimple())
            std::puts("the statement was read wrongly");
    });
    NamesReader reader(names);
    colShowSQLSentences history(&reader);
    history.AddCurrentSQL(statement, AllFieldsShown);
    Measure("quick filter on two words, composed into the next statement", [&] {
        QString condition;
        QString next;
        BuildLikeCondition(QStringLiteral("ab%cd"), fields, statement, dbAccess, condition);
        history.GetNextSQLByFilter(condition, next);
    });
    Measure("one condition, composed into the next statement", [&] {
        QString next;
        history.GetNextSQLByFilter(QStringLiteral("ID < 10"), next);
    });
    Measure("catalogue filled and part fields marked through a reader", [&] {
        history.Clear();
        history.SetConnString(QStringLiteral("DSN=a"));
        history.SetAllFields(statement);
        history.SetShowFieds(statement);
        history.AddCurrentSQL(statement, AllFieldsShown);
        history.GetCurrSQLFieldsStatus();
    });
}

void MeasureLayout()
{
    for (const int count : {1000, 2000, 4000}) {
        const QStringList names = FieldNames(count);
        const QByteArray what =
            QByteArray::number(count) + " columns filled, marked, found and given a width";
        Measure(what.constData(), [&] {
            colDataFields catalogue;
            LayOutColumns(catalogue, names);
        });
    }
}

void MeasureHistory()
{
    NamesReader reader(FieldNames(10));
    colShowSQLSentences history(&reader);
    const auto push = [&] {
        history.Clear();
        history.SetConnString(QStringLiteral("DSN=a"));
        history.SetAllFields(QStringLiteral("select * from T"));
        for (int number = 0; number < 1000; ++number) {
            history.AddCurrentSQL(QStringLiteral("select * from T where ID > %1").arg(number), AllFieldsShown,
                                  history.NoPartField(), history.NoSort());
        }
    };
    QString statement;
    QString key;
    Measure("1000 history entries added", push);
    Measure("1000 history entries added, and stepped back one by one", [&] {
        push();
        while (history.Count() > 1)
            history.GetPreviewSQL(statement, &key);
    });
    Measure("1000 history entries added, and back to the first", [&] {
        push();
        history.GetFirstSQL(statement, &key);
    });
}

} // namespace

int main()
{
    MeasureStatements();
    MeasureLayout();
    MeasureHistory();
    return 0;
}
