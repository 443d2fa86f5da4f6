#include "control/face/LayoutKeeper.h"

#include "control/parts/Survives.h"
#include "control/settings/Configuration.h"
#include "grid/FlexGrid.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/layout/SavedLayout.h"
#include "session/statement/LoadedTable.h"

#include <QtCore/QCryptographicHash>

#include <utility>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int airInColumn = 120;         // twips, so that adjacent columns are clearly separated
constexpr int millisecondsToSave = 1000; // dragging an edge changes a width many times

} // namespace

LayoutKeeper::LayoutKeeper(Session &session, const VSFlexGrid &grid) : m_session(session)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(millisecondsToSave);
    const auto begin = [this] { m_delay.start(); };
    connect(&grid, &FlexGrid::ColWidthChanged, this, begin);
    connect(&grid, &FlexGrid::ColumnsArranged, this, begin);
    connect(&m_delay, &QTimer::timeout, this, &LayoutKeeper::save);
}

void LayoutKeeper::setKey(const QString &key)
{
    if (key == m_key)
        return;
    save();
    m_key = key;
    if (m_session.result().isOpen())
        restore();
}

// A hash of fixed length, whatever characters the host and the database use.
QString LayoutKeeper::place() const
{
    const QByteArray name = (m_key + u'\n' + m_table).toUtf8();
    return QString::fromLatin1(QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex());
}

void LayoutKeeper::restore()
{
    m_known.clear();
    m_table.clear();
    if (m_key.isEmpty() || !m_session.result().isOpen())
        return;
    m_table = loadedTable(m_session);
    // A layout that can't be read is ignored, and replaced by the next change.
    const auto kept = SavedLayout::fromText(readLayout(place()));
    const auto show = [&kept](LayoutKeeper &keeper) {
        if (const auto *layout = std::get_if<SavedLayout>(&kept))
            restoreLayout(keeper.m_session, *layout);
        else
            keeper.fitColumns();
    };
    if (survives(*this, show) && m_session.result().isOpen())
        m_known = layoutOf(m_session).toText();
}

// A host that stores layouts wants readable columns the first time, too.
void LayoutKeeper::fitColumns()
{
    SessionWindow &window = m_session.window();
    for (const int col : window.shownColumns())
        window.PutColWidth(col, window.fittingWidth(col) + airInColumn);
}

void LayoutKeeper::save()
{
    m_delay.stop();
    if (m_key.isEmpty() || m_known.isEmpty() || !m_session.result().isOpen())
        return;
    const QString layout = layoutOf(m_session).toText();
    if (layout != std::exchange(m_known, layout))
        saveLayout(place(), layout);
}

} // namespace KOVAVSFDataGridLib
