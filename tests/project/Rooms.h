#pragma once

#include <QtCore/QMap>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace KovaTest {

// What CMake says about the folders of a source tree: which libraries each links, and so which other folders
// it may include from. Folders are written from the top of the tree ("src/ado").
class Rooms
{
public:
    // Reads lines `<folder>: <library> …` and one line `public headers: <file> …`, files from src/.
    explicit Rooms(const QString &file);

    QStringList folders() const { return m_links.keys(); }
    // The folder that a file or folder lies in; empty when CMake says nothing about any.
    QString folderOf(const QString &path) const;
    // The folders of the rooms that it links itself.
    QSet<QString> restsOn(const QString &folder) const;
    // Whether it links the finished library, whose public headers it may then include.
    bool isHost(const QString &folder) const;
    // Whether it links a library itself; and whether it or a room that it depends on does.
    bool links(const QString &folder, const QString &library) const;
    bool reaches(const QString &folder, const QString &library) const;
    // From the top of the tree.
    bool isPublicHeader(const QString &file) const { return m_publicHeaders.contains(file); }

private:
    QMap<QString, QStringList> m_links;
    QSet<QString> m_publicHeaders;
};

// All lines of a text file; the running test fails if it can't be read.
QStringList linesOf(const QString &path);

} // namespace KovaTest
