#pragma once

#include <QtCore/QString>

struct QJsonParseError;

namespace KOVAVSFDataGridLib {

// Why a text is not valid JSON, for the user: Qt's own messages are English only.
struct JsonFault
{
    QString place;  // the position of the error in characters, from 1
    QString reason; // without a full stop
};

JsonFault jsonFault(const QString &text, const QJsonParseError &error);

} // namespace KOVAVSFDataGridLib
