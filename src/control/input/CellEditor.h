#pragma once

#include "ado/RecordsetObserver.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>
#include <optional>

namespace ADODB {
class Field;
class Recordset;
} // namespace ADODB

namespace KOVAVSFDataGridLib {

class GridParts;
class LinesEdit;
class Session;

// The editor for a value of the single-record list: txtEdit, which offers a calendar, yes and no, or the
// values that the column has, or a multi-line box for long texts and texts with line breaks. Committing
// writes the value to the field of the current record, which is saved to the database later. If a host saves
// the record or moves to another one, what is being typed is committed first.
class CellEditor : public QObject, private ADODB::RecordsetObserver
{
    Q_OBJECT

public:
    // Both must outlive this object.
    CellEditor(Session &session, GridParts &parts);
    ~CellEditor() override;

    // Opens over the list's current row for the field in that column of the main grid (from 1), with its
    // value or with a text that the user has begun to type. A field that can't be written is opened for
    // reading, and a message tells why. Returns false if there is no such field or no record, or if the text
    // is too long to edit, after a message to the user.
    bool begin(int gridCol, const std::optional<QString> &typed = {});
    // Writes Null in place of what is typed; says so where the field takes none.
    void clear();
    // Whether the field in that column can be written.
    bool canWrite(int gridCol) const;
    bool isOpen() const;
    // Whether the text was changed and is not yet written to the field.
    bool isChanged() const;
    bool hasFocus() const;
    void setFocus();
    // The widget that receives the keys while it is open.
    QWidget &widget() const;
    // Closes it and writes the text to the field. If the text doesn't fit, it stays open, and the reason is
    // returned, as a text for the user.
    std::optional<QString> commit();
    // Closes it and discards the text.
    void close();

Q_SIGNALS:
    // The user wants to save the changes to the record.
    void saveWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Written { Typed, Null };

    void willLeaveRecord() override;
    void moveComplete(ADODB::EventReasonEnum) override {}
    void recordChangeComplete(ADODB::EventReasonEnum) override {}
    void recordsetChangeComplete(ADODB::EventReasonEnum) override {}
    void observe(const std::shared_ptr<ADODB::Recordset> &recordset);

    bool refusesLong(const ADODB::Field &field) const;
    void open(const ADODB::Field &field, const QString &text, bool isReadOnly);
    // Inserts a line break, and switches to the multi-line box.
    void breakLine();
    void place();
    void noteTyped();
    QString typedText() const;
    std::optional<QString> commit(Written what);
    // The same for a text. Throws ADODB::Error if it doesn't fit.
    void writeAndClose(Written what);
    void write(Written what);

    Session &m_session;
    GridParts &m_parts;
    LinesEdit &m_lines;
    std::weak_ptr<ADODB::Recordset> m_recordset; // with the record being edited, while it is open
    bool m_hasLines = false;                     // whether m_lines is used
    bool m_isReadOnly = false;
    bool m_isText = false;
    bool m_isShownChanged = false; // the state last shown to the user
    QString m_before;              // the initial text
    int m_field = 0;               // 0-based
    int m_row = 0;                 // in the list
    bool m_isCommitting = false;
};

} // namespace KOVAVSFDataGridLib
