#pragma once

#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace KOVAVSFDataGridLib {

class Session;
class VSFlexGrid;

// Keeps the layout of the columns for the user, by the host's key and the table: restored when the table is
// loaded, saved a moment after it was changed and when the result goes. Does nothing while the key is empty.
class LayoutKeeper : public QObject
{
    Q_OBJECT

public:
    // Both must outlive this object.
    LayoutKeeper(Session &session, const VSFlexGrid &grid);

    const QString &key() const { return m_key; }
    // A result that is open takes the layout kept under the key at once.
    void setKey(const QString &key);

    // To be called when a result was loaded, and before it goes.
    void restore();
    void save();

private:
    void fitColumns();
    QString place() const;

    Session &m_session;
    QString m_key;
    QString m_table;
    QString m_known; // the layout as it was restored or saved
    QTimer m_delay;
};

} // namespace KOVAVSFDataGridLib
