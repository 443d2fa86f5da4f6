#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// One value to show to the user.
struct ShownValue
{
    QString field;
    QString place; // which cell the value is from, as a text for the user
    bool isNull = false;
    bool isBinary = false; // if true, the value is `bytes`
    QString text = {};
    QByteArray bytes = {};
};

} // namespace KOVAVSFDataGridLib
