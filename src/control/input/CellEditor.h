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
struct ListedValues;

// The editor over a value of the single-record list: txtEdit, which offers a calendar, yes and no, or the
// values that the column has already, or a box of several lines for long texts and those with line breaks.
// What is taken from it is written into the field of the current record; it reaches the database when the
// record is saved. When a host saves the record or moves to another one, what is typed is taken first.
class CellEditor : public QObject, private ADODB::RecordsetObserver
{
    Q_OBJECT

public:
    // Both must outlive this object.
    CellEditor(Session &session, GridParts &parts);
    ~CellEditor() override;

    // Opens over the list's current row for the field in that column of the main grid (from 1), with its
    // value, or with a text that the user began with. A field that can't be written is opened for reading,
    // and says so. False when there is no such field or no record, and when the text is too long to be
    // edited, which the user has been told.
    bool begin(int gridCol, const std::optional<QString> &typed = {});
    // Writes Null in place of what is typed; says so where the field takes none.
    void clear();
    // Whether the field in that column can be written.
    bool canWrite(int gridCol) const;
    bool isOpen() const;
    // Whether something is typed that the field doesn't have yet.
    bool isChanged() const;
    bool hasFocus() const;
    void setFocus();
    // The widget that takes the keys while it is open.
    QWidget &widget() const;
    // Closes it and writes what was typed into the field. A text that doesn't fit stays, and the answer is
    // why, for the user to read.
    std::optional<QString> commit();
    // Closes it and forgets what was typed.
    void close();

Q_SIGNALS:
    // The user wants what he wrote into the record to be saved.
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
    // Goes on in several lines.
    void breakLine();
    void place();
    void noteTyped();
    QString typedText() const;
    ListedValues knownValues() const;
    ListedValues valuesOfColumn(const QString &search) const;
    std::optional<QString> commit(Written what);
    // The same; throws ADODB::Error where the text doesn't fit.
    void writeAndClose(Written what);
    void write(Written what);

    Session &m_session;
    GridParts &m_parts;
    LinesEdit &m_lines;
    std::weak_ptr<ADODB::Recordset> m_recordset; // whose record is edited, while it is open
    bool m_hasLines = false;                     // whether m_lines is the one in use
    bool m_isReadOnly = false;
    bool m_isText = false;
    bool m_isShownChanged = false; // as the window tells the user
    QString m_before;              // the text that it opened with
    int m_field = 0;               // 0-based
    int m_row = 0;                 // of the list
    bool m_isCommitting = false;
};

} // namespace KOVAVSFDataGridLib
