#include "CaseFile.h"

#include <QtCore/QFile>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace KovaTest {

namespace {

QString Readable(QString value)
{
    return value.replace(u'·', u' ').replace(u'⏎', u'\n').replace(u'→', u'\t');
}

} // namespace

QStringList Case::List(const QString &name) const
{
    const QString text = values.value(name);
    return text.isEmpty() ? QStringList() : text.split(u'|');
}

std::vector<Case> ReadCases(const QString &fileName)
{
    QFile file(QStringLiteral(KOVA_QUERY_DATA "/") + fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << fileName.toStdString();
    std::vector<Case> cases;
    bool isInside = false;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (qsizetype number = 1; number <= lines.size(); ++number) {
        const QString &line = lines.at(number - 1);
        if (line.startsWith(u'#'))
            continue;
        const auto colon = line.indexOf(u':');
        if (colon < 0) {
            isInside = false;
            continue;
        }
        if (!isInside)
            cases.push_back({fileName + u':' + QString::number(number), {}});
        isInside = true;
        cases.back().values.insert(line.first(colon), Readable(line.mid(colon + 1).trimmed()));
    }
    EXPECT_FALSE(cases.empty()) << fileName.toStdString();
    return cases;
}

std::vector<Case> ReadCases(const QStringList &fileNames)
{
    std::vector<Case> all;
    for (const QString &fileName : fileNames)
        std::ranges::copy(ReadCases(fileName), std::back_inserter(all));
    return all;
}

} // namespace KovaTest
