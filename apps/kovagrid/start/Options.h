#pragma once

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

// What the command line asks for.
struct Options
{
    // Each is empty when it was not given.
    QString connection;
    QString sql;
    QString part;
    QString sort;
    QStringList keys; // toolbar buttons to press after the load
    QString screenshot;
    QSize size{1280, 800}; // of the window in the picture
    qint32 dbType = 1;     // AllDBType
    qint32 tableType = 0;  // TBLType
    bool print = false;
    bool isDark = false;          // whatever the system's colours are
    std::optional<int> printRows; // all of them when not given

    // Nothing when the arguments (without the program's name) make no sense; `error` then says why.
    static std::optional<Options> parse(const QStringList &arguments, QString &error);
    // The language that the arguments ask for, for messages about the others; empty when they don't say.
    static QString language(const QStringList &arguments);
};
