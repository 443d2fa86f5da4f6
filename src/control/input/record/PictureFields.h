#pragma once

#include <QtCore/QObject>

class QWidget;

namespace ADODB {
class Field;
}

namespace KOVAVSFDataGridLib {

class Session;

// Replaces pictures in the current record with files, and removes them.
class PictureFields : public QObject
{
    Q_OBJECT

public:
    // Both must outlive this object.
    PictureFields(Session &session, QWidget &window) : m_session(session), m_window(window) {}

    static bool isBinary(const ADODB::Field &field);

    // Asks for a file and writes its picture to a field (0-based) of the current record, which is then not
    // yet saved. If the file is not a picture, tells the user and changes nothing.
    void replace(int field);
    void clear(int field);

private:
    void readFile(int field, const QString &file);
    void write(int field, const QVariant &value);

    Session &m_session;
    QWidget &m_window;
};

} // namespace KOVAVSFDataGridLib
