#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// One value for a user to look at.
struct ShownValue
{
    QString field;
    QString place; // whose value it is, for the user to read
    bool isNull = false;
    bool isBinary = false; // then it is `bytes`
    QString text = {};
    QByteArray bytes = {};
};

} // namespace KOVAVSFDataGridLib
