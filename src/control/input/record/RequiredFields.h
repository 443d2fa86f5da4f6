#pragma once

#include <QtCore/QObject>

#include <memory>
#include <set>

class QWidget;

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

class Session;

// The fields of the open result that need a value from the user. The database is asked once for a result,
// when its record is there to be seen.
class RequiredFields final : public QObject
{
    Q_OBJECT

public:
    // `place` is where they are shown.
    RequiredFields(Session &session, const QWidget &place) : m_session(session), m_place(place) {}

    // Asks about the result that is open now, a little later, unless that was done.
    void learn();
    // False for all fields until learned().
    bool has(int field) const;

Q_SIGNALS:
    void learned();

private:
    void askDatabase();

    Session &m_session;
    const QWidget &m_place;
    std::weak_ptr<ADODB::Recordset> m_askedOf;
    std::weak_ptr<ADODB::Recordset> m_learnedOf;
    std::set<int> m_filled; // those that get a value without the user
};

} // namespace KOVAVSFDataGridLib
