#pragma once

#include "control/commands/ControlHub.h"

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// The statement that is shown, and how another one takes its place. A statement that can't be opened is told
// to the user and changes nothing.
class ShownStatement
{
public:
    // Whether a reload leaves the statement shown before it for the dialogs to find.
    enum class Previous { Keep, Forget };

    explicit ShownStatement(ControlHub &hub) : m_hub(hub) {}

    const QString &current() const { return m_current; }
    // Says what is shown without opening it: after a load, or when only the columns changed.
    void setCurrent(const QString &statement) { m_current = statement; }
    void rememberAsPrevious() const;

    // Opens the statement and shows its first page. False when it is empty or can't be opened.
    bool OpenShowSQL(const QString &strSQL);
    // The same as SQLFilter, with the column widths kept. Adds nothing to the history.
    bool reload(const QString &statement, Previous previous);
    // The same for a statement with one more condition, which is then the latest entry of the history.
    bool reloadFiltered(const QString &statement, Previous previous);
    // Makes what is shown the latest entry of the history and lays its columns out by ShowModel.
    bool record(const QString &statement, const QString &partFields, const QString &orderFields);

private:
    ControlHub &m_hub;
    QString m_current;
};

// 1 when all fields are shown, else 0: the mark of a history entry.
qint32 GetShowAllFieldsFlag(qint32 showModel);

} // namespace KOVAVSFDataGridLib
