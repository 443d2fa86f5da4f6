#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// The text of a document that began as `before` and is `typed` now, as QTextDocument::toRawText() gives it.
// Line breaks in front of what was changed and behind it are as they were; those between are like most
// others.
QString withLineBreaksOf(const QString &before, const QString &typed);

// Whether a text has so many characters without a blank that breaking them into lines takes long.
bool hasLongWord(const QString &text);

} // namespace KOVAVSFDataGridLib
