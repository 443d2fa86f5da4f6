#pragma once

#include "session/layout/ColumnLayout.h"
#include "session/layout/KeptWidths.h"

namespace KOVAVSFDataGridLib {

class Session;

// Which fields of a session's result are shown (all or the part fields), and their widths.
class ShownColumns
{
public:
    explicit ShownColumns(Session &session);

    FieldView view() const { return m_view; }
    // Set by a host; has no immediate effect.
    void putView(FieldView view);
    // Records that all fields or the part fields are shown.
    void setView(FieldView view);
    // The same for a result that was loaded with these part fields. If there are none, all fields are shown,
    // as by "Part".
    void showLoaded(const QString &partFields);
    // Arranges the columns for the current view.
    void layOut();

    // Divides the grid's width among the visible columns. Does nothing in the single-record view.
    void compress();
    // The widths before the columns were last fitted.
    KeptWidths &keptWidths() { return m_keptWidths; }

private:
    Session &m_session;
    KeptWidths m_keptWidths;
    FieldView m_view = FieldView::All;
    bool m_lacksPartFields = false; // only therefore all are shown; the next load shows the part fields
};

} // namespace KOVAVSFDataGridLib
