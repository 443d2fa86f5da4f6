#pragma once

#include <QtCore/QString>

struct QJsonParseError;

namespace KOVAVSFDataGridLib {

// Why a text is no JSON, in words: Qt's own are English.
struct JsonFault
{
    QString place;  // the character at which it was noticed, from 1
    QString reason; // without a full stop
};

JsonFault jsonFault(const QString &text, const QJsonParseError &error);

} // namespace KOVAVSFDataGridLib
