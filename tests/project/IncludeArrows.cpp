#include "IncludeArrows.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace KovaTest {

namespace {

constexpr QLatin1StringView orderedRoom = "src/control/"_L1;

// The folder directly below that room that contains a file; empty for a file of another room.
QString orderedFolder(const QString &file)
{
    return file.startsWith(orderedRoom) ? file.mid(orderedRoom.size()).section(u'/', 0, 0) : QString();
}

} // namespace

QStringList IncludeArrows::faults()
{
    m_faults.clear();
    for (const QString &top : {u"src"_s, u"designer"_s, u"apps"_s, u"examples"_s, u"python"_s}) {
        QDirIterator files(m_tree + u'/' + top, {u"*.h"_s, u"*.cpp"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            checkFile(QDir(m_tree).relativeFilePath(files.next()));
    }
    m_faults.sort();
    return m_faults;
}

void IncludeArrows::checkFile(const QString &file)
{
    static const QRegularExpression include(u"^ *# *include *([\"<])([^\">]+)"_s);
    const QStringList lines = linesOf(m_tree + u'/' + file);
    const QString ordered = orderedFolder(file);
    const auto add = [&](const QString &fault) {
        if (!fault.isEmpty())
            m_faults += file + u": "_s + fault;
    };
    if (file.endsWith(".h"_L1) && !lines.contains(u"#pragma once"_s))
        add(u"has no #pragma once"_s);
    const QString folder = m_rooms.folderOf(file);
    if (folder.isEmpty() && !m_rooms.isPublicHeader(file)) {
        add(u"CMake doesn't say what its folder links"_s);
        return;
    }
    if (!ordered.isEmpty() && !m_order.contains(ordered))
        add(u"%1 has no place among the folders of its room"_s.arg(ordered));
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = include.match(line);
        if (match.hasMatch())
            add(match.captured(1) == u'"' ? faultOfOwn(file, match.captured(2))
                                          : faultOfSystem(folder, match.captured(2)));
    }
}

// Public headers include one another by relative paths, wherever they are installed; all other paths are
// relative to src/. A host has its own convention for its own files.
QString IncludeArrows::faultOfOwn(const QString &file, const QString &name)
{
    const QString beside = QDir::cleanPath(QFileInfo(file).path() + u'/' + name);
    if (m_rooms.isPublicHeader(file)) {
        ++m_includes;
        if (!isThere(beside))
            return u"a public header includes others by their relative path, not "_s + name;
        return m_rooms.isPublicHeader(beside) ? arrowFault(file, beside)
                                              : u"a public header may not include "_s + name;
    }
    if (name.startsWith("moc_"_L1) || name.endsWith(".moc"_L1))
        return {};
    ++m_includes;
    if (isThere("src/"_L1 + name) && name.contains(u'/'))
        return arrowFault(file, "src/"_L1 + name);
    if (file.startsWith("src/"_L1))
        return name == "KovaExport.h"_L1 ? QString() : u"includes are written from src/: "_s + name;
    const QString folder = m_rooms.folderOf(file);
    const bool isOwn =
        std::ranges::any_of(QStringList{beside, folder + u'/' + name, name}, [&](const QString &path) {
            return isThere(path) && m_rooms.folderOf(path) == folder;
        });
    return isOwn ? QString() : u"may not include "_s + name;
}

QString IncludeArrows::faultOfSystem(const QString &folder, const QString &name)
{
    static const QRegularExpression window(u"^Q(tWidgets|tGui|Widget|Dialog|Application)"_s);
    static const QRegularExpression database(u"^(sqlite3|sql|odbc)"_s);
    if (name == "KOVAVSFDataGrid"_L1 || name.startsWith("KOVAVSFDataGridLib/"_L1)) {
        ++m_includes;
        const bool may = m_rooms.isHost(folder) || m_rooms.restsOn(folder).contains(u"src/control"_s) ||
                         folder == "src/control"_L1;
        return may ? QString() : u"may not include <%1>"_s.arg(name);
    }
    const bool hasWindow = m_rooms.reaches(folder, u"Qt6::Widgets"_s) || !folder.startsWith("src/"_L1);
    if (!hasWindow && window.match(name).hasMatch())
        return u"this room has no window: <%1>"_s.arg(name);
    const bool hasDatabase =
        m_rooms.links(folder, u"SQLite::SQLite3"_s) || m_rooms.links(folder, u"ODBC::ODBC"_s);
    if (!hasDatabase && database.match(name).hasMatch())
        return u"this room has no database: <%1>"_s.arg(name);
    return {};
}

QString IncludeArrows::arrowFault(const QString &file, const QString &target) const
{
    const QString from = m_rooms.folderOf(file);
    const QString to = m_rooms.folderOf(target);
    if (!to.isEmpty() && to != from && !m_rooms.restsOn(from).contains(to))
        return u"%1 may not use %2"_s.arg(from, target);
    const qsizetype place = m_order.indexOf(orderedFolder(target));
    if (place >= 0 && place < m_order.indexOf(orderedFolder(file)))
        return u"%1 may not use %2"_s.arg(file.section(u'/', 0, 2), target);
    return {};
}

bool IncludeArrows::isThere(const QString &file) const
{
    return QFileInfo(m_tree + u'/' + file).isFile();
}

} // namespace KovaTest
