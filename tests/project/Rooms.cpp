#include "Rooms.h"

#include <QtCore/QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace KovaTest {

QStringList linesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll()).split(u'\n');
}

Rooms::Rooms(const QString &file)
{
    for (const QString &line : linesOf(file)) {
        const QString name = line.section(u": "_s, 0, 0);
        const QStringList words = line.section(u": "_s, 1).split(u' ', Qt::SkipEmptyParts);
        if (name == "public headers"_L1) {
            for (const QString &header : words)
                m_publicHeaders.insert("src/"_L1 + header);
        } else if (!name.isEmpty()) {
            m_links.insert(name, words);
        }
    }
}

QString Rooms::folderOf(const QString &path) const
{
    QString found;
    for (const QString &folder : folders()) {
        if (path.startsWith(folder + u'/') && folder.size() > found.size())
            found = folder;
    }
    return found;
}

QSet<QString> Rooms::restsOn(const QString &folder) const
{
    QSet<QString> rooms;
    for (const QString &library : m_links.value(folder)) {
        if (library.startsWith("kova_"_L1))
            rooms.insert("src/"_L1 + library.mid(5));
    }
    return rooms;
}

bool Rooms::isHost(const QString &folder) const
{
    return links(folder, u"KOVAVSFDataGridLib::KOVAVSFDataGridLib"_s);
}

bool Rooms::links(const QString &folder, const QString &library) const
{
    return m_links.value(folder).contains(library);
}

bool Rooms::reaches(const QString &folder, const QString &library) const
{
    if (links(folder, library))
        return true;
    const QSet<QString> below = restsOn(folder);
    return std::any_of(below.begin(), below.end(),
                       [&](const QString &room) { return reaches(room, library); });
}

} // namespace KovaTest
