#pragma once

#include "session/layout/ColumnLayout.h"
#include "session/layout/KeptWidths.h"

namespace KOVAVSFDataGridLib {

class Session;

// Which fields of a session's result are shown, all or the part fields, and how wide.
class ShownColumns
{
public:
    explicit ShownColumns(Session &session);

    FieldView view() const { return m_view; }
    // What a host writes; nothing changes by it.
    void putView(FieldView view);
    // Shows that all or the part fields are shown.
    void setView(FieldView view);
    // The same for a result that was loaded with these part fields. Without any all fields are shown, as by
    // "Part".
    void showLoaded(const QString &partFields);
    // Lays the columns out as the view wants them.
    void layOut();

    // Shares the grid's width among the columns that are shown; not while a single record is.
    void compress();
    // The widths before the columns were last fitted.
    KeptWidths &keptWidths() { return m_keptWidths; }

private:
    Session &m_session;
    KeptWidths m_keptWidths;
    FieldView m_view = FieldView::All;
    bool m_lacksPartFields = false; // all are shown for that alone; the next load shows part of its fields
};

} // namespace KOVAVSFDataGridLib
