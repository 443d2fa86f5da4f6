#pragma once

#include <QtWidgets/QLineEdit>

// A line edit for a connection string. Passwords are shown as dots, even while they are typed, and can't be
// copied.
class ConnectionEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ConnectionEdit(const QString &connection, QWidget *parent = nullptr);

    // The text including its passwords.
    const QString &connection() const { return m_connection; }
    void setConnection(const QString &connection);

    // The text with each character of its passwords replaced by a dot.
    static QString masked(const QString &connection);

private:
    void edit(const QString &seen);

    QString m_connection;
    QString m_seen; // before the last edit
};
