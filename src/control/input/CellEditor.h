#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

#include <optional>

namespace KOVAVSFDataGridLib {

class GridParts;
class Session;

// txtEdit, laid over a value of the single-record list. What is taken from it is written into the field of
// the current record; it reaches the database when the record is saved.
class CellEditor : public QObject
{
    Q_OBJECT

public:
    // Both must outlive this object.
    CellEditor(Session &session, GridParts &parts);

    // Opens over the list's current row for the field in that column of the main grid (from 1), with its
    // value, or with a text that the user began with. A field that can't be written is opened for reading,
    // and says so. False when there is no such field or no record.
    bool begin(int gridCol, const std::optional<QString> &typed = {});
    bool isOpen() const;
    // Closes it and writes what was typed into the field. A text that doesn't fit stays, and the answer is
    // why, for the user to read.
    std::optional<QString> commit();
    // Closes it and forgets what was typed.
    void close();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();
    void putValue(const QString &text);

    Session &m_session;
    GridParts &m_parts;
    int m_field = 0; // 0-based
    int m_row = 0;   // of the list
    bool m_isCommitting = false;
};

} // namespace KOVAVSFDataGridLib
