#pragma once

#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace KOVAVSFDataGridLib {

class Session;
class VSFlexGrid;

// Stores the layout of the columns for the user, by the host's key and the table. It is restored after the
// table was loaded, and saved soon after a change and before the result closes. Not used if the key is empty.
class LayoutKeeper : public QObject
{
    Q_OBJECT

public:
    // Both must outlive this object.
    LayoutKeeper(Session &session, const VSFlexGrid &grid);

    const QString &key() const { return m_key; }
    // If a result is open, the layout stored under the key is applied immediately.
    void setKey(const QString &key);

    // Call it after a result was loaded, and save() before it is closed.
    void restore();
    void save();

private:
    void fitColumns();
    QString place() const;

    Session &m_session;
    QString m_key;
    QString m_table;
    QString m_known; // the layout when it was last restored or saved
    QTimer m_delay;
};

} // namespace KOVAVSFDataGridLib
