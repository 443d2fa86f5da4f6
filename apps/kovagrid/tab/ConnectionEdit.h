#pragma once

#include <QtWidgets/QLineEdit>

// A line for a connection string. Passwords in it are seen as dots, also while they are typed, and can't be
// copied out.
class ConnectionEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ConnectionEdit(const QString &connection, QWidget *parent = nullptr);

    // The text with its passwords.
    const QString &connection() const { return m_connection; }
    void setConnection(const QString &connection);

    // The text with a dot in place of each character of its passwords.
    static QString masked(const QString &connection);

private:
    void edit(const QString &seen);

    QString m_connection;
    QString m_seen; // before the latest edit
};
