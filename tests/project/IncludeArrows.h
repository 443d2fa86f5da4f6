#pragma once

#include "Rooms.h"

namespace KovaTest {

// Looks at every include of a source tree and says which ones point the wrong way.
class IncludeArrows
{
public:
    // Within a room, any file may include any other, but the folders of control/ only those after them in
    // `order`. A folder that is not listed is an error.
    IncludeArrows(const QString &tree, const Rooms &rooms, const QStringList &order)
        : m_tree(tree), m_rooms(rooms), m_order(order)
    {
    }

    // One text a fault: "<file>: <what is wrong>".
    QStringList faults();
    // How many includes of the tree's own files were looked at.
    int includes() const { return m_includes; }

private:
    void checkFile(const QString &file);
    QString faultOfOwn(const QString &file, const QString &name);
    QString faultOfSystem(const QString &folder, const QString &name);
    QString arrowFault(const QString &file, const QString &target) const;
    bool isThere(const QString &file) const;

    QString m_tree;
    const Rooms &m_rooms;
    QStringList m_order;
    QStringList m_faults;
    int m_includes = 0;
};

} // namespace KovaTest
