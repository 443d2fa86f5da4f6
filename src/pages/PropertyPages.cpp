#include "pages/PropertyPages.h"

#include "pages/ConnectionString.h"
#include "pages/PartDisplayField.h"
#include "pages/RecordSource.h"
#include "pages/SQLShow.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

template<typename Page>
PropertyPage *newPage(QWidget *parent)
{
    return new Page(parent);
}

struct Entry
{
    QString name;
    PropertyPage *(*make)(QWidget *parent);
};

const Entry entries[] = {
    {u"ConnectionString"_s, newPage<ConnectionString>},
    {u"RecordSource"_s, newPage<RecordSource>},
    {u"SQLShow"_s, newPage<SQLShow>},
    {u"PartDisplayField"_s, newPage<PartDisplayField>},
};

} // namespace

QStringList propertyPageNames()
{
    QStringList names;
    for (const Entry &entry : entries)
        names += entry.name;
    return names;
}

PropertyPage *newPropertyPage(const QString &name, QWidget *parent)
{
    for (const Entry &entry : entries) {
        if (entry.name == name)
            return entry.make(parent);
    }
    return nullptr;
}

} // namespace KOVAVSFDataGridLib
