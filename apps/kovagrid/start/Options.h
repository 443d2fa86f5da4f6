#pragma once

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

// The command line options.
struct Options
{
    // Empty if not given.
    QString connection;
    QString sql;
    QString part;
    QString sort;
    QStringList keys; // toolbar buttons to press after the load
    QString screenshot;
    QSize size{1280, 800}; // of the window in the screenshot
    qint32 dbType = 1;     // AllDBType
    qint32 tableType = 0;  // TBLType
    bool print = false;
    bool isDark = false;          // dark colours, whatever the system's are
    std::optional<int> printRows; // all rows if not given

    // No value if the arguments (without the program name) are invalid; `error` is then the reason.
    static std::optional<Options> parse(const QStringList &arguments, QString &error);
    // The language in the arguments, for error messages about the others; empty if there is none.
    static QString language(const QStringList &arguments);
};
